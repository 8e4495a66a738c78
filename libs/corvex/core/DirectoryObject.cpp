// SPDX-License-Identifier: MIT
#include "corvex/core/DirectoryObject.h"

#include "corvex/common/LocalizationHelper.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

QString DirectoryObject::baseName() const
{
    return u"Directory"_s;
}

QString DirectoryObject::displayName() const
{
    return Common::LocalizationHelper::coreString(u"Directory Object"_s);
}

bool DirectoryObject::createDirectory(const QString &path)
{
    const QString name = createDirectoryName();
    const QDir parent(path);
    if (path.isEmpty() || name.isEmpty() || !parent.exists()) {
        return false;
    }
    if (!QFileInfo(parent.filePath(name)).isDir() && !parent.mkdir(name)) {
        return false;
    }
    m_parentPath = parent.absolutePath();
    m_directoryName = name;
    return true;
}

bool DirectoryObject::loadDirectory(const QString &path)
{
    const QString name = createDirectoryName();
    QDir parent(path);
    if (path.isEmpty() || name.isEmpty() || !parent.exists()) {
        return false;
    }
    parent.makeAbsolute();
    if (!QFileInfo(parent.filePath(name)).isDir() && (parent.dirName() != name || !parent.cdUp())) {
        return false;
    }
    m_parentPath = parent.absolutePath();
    m_directoryName = name;
    return true;
}

QString DirectoryObject::fullPath() const
{
    return m_directoryName.isEmpty() ? QString() : u"%1/%2"_s.arg(m_parentPath, m_directoryName);
}

} // namespace Halvane::Corvex::Designer
