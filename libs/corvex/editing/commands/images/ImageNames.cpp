// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/images/ImageNames.h"

#include "corvex/common/TextHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/project/Project.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ImageNames::ImageNames(const Project *project)
    : m_project(project)
{
    for (const QString &name : project->imageResources()->listItemNames()) {
        m_names.insert(name.toLower());
    }
}

QString ImageNames::extensionOf(const QString &name)
{
    return name.section(u'.', -1).toLower();
}

QString ImageNames::withContents(const QString &digest, const QString &extension)
{
    if (!std::exchange(m_contentsKnown, true)) {
        for (const QString &name : m_project->imageResources()->listItemNames()) {
            add(name, Common::FileHelper::md5(u"%1/%2"_s.arg(m_project->imagesPath(), name)));
        }
    }
    return m_byContents.value({digest, extension});
}

QString ImageNames::freeName(const QString &wanted)
{
    const qsizetype dot = wanted.lastIndexOf(u'.');
    const QString suffix = dot < 0 ? QString() : wanted.sliced(dot);
    QString stem;
    qint64 number = Common::TextHelper::numberFromString(QStringView(wanted).chopped(suffix.size()), &stem);
    QString name = wanted;
    while (m_names.contains(name.toLower())
           || QFileInfo::exists(u"%1/%2"_s.arg(m_project->imagesPath(), name))) {
        number = std::max<qint64>(number + 1, 1);
        name = u"%1%2%3"_s.arg(stem, QString::number(number), suffix);
    }
    m_names.insert(name.toLower());
    return name;
}

void ImageNames::add(const QString &name, const QString &digest)
{
    m_names.insert(name.toLower());
    if (!digest.isEmpty()) {
        m_byContents.insert({digest, extensionOf(name)}, name);
    }
}

} // namespace Halvane::Corvex::Designer
