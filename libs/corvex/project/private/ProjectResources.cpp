// SPDX-License-Identifier: MIT
#include "corvex/project/private/ProjectResources.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/Progress.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

QString ProjectResources::imagesFolder()
{
    return u"Images"_s;
}

QString ProjectResources::approvalsFile()
{
    return u"Approvals.jsonl"_s;
}

QStringList ProjectResources::otherFiles()
{
    return {u"Preview.png"_s, approvalsFile()};
}

ProjectResources::ProjectResources(const Project &project)
{
    for (const DesignerObject *item : project.imageResources()->listItems()) {
        const auto *image = static_cast<const ImageResource *>(item);
        add(image->filePath(), u"%1/%2"_s.arg(imagesFolder(), image->fileName()));
    }
    if (const QString folder = project.folderPath(); !folder.isEmpty()) {
        for (const QString &name : otherFiles()) {
            add(QDir(folder).filePath(name), name);
        }
    }
}

void ProjectResources::add(const QString &path, const QString &name)
{
    if (QFileInfo(path).isFile()) {
        m_files.append({path, name});
    }
}

bool ProjectResources::copyTo(const QString &folder, QString *error, const Common::Progress *progress) const
{
    const QDir target(folder);
    for (const File &file : m_files) {
        if (progress && progress->isCancelled()) {
            *error = Common::LocalizationHelper::coreString(u"Copying was cancelled."_s);
            return false;
        }
        const QString copy = target.filePath(file.name);
        // Two resources with the same name share one file.
        if (QFileInfo::exists(copy)) {
            continue;
        }
        QDir().mkdir(QFileInfo(copy).path());
        if (!Common::FileHelper::copyFile(file.path, copy, error)) {
            return false;
        }
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
