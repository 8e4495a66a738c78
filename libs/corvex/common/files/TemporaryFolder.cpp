// SPDX-License-Identifier: MIT
#include "corvex/common/files/TemporaryFolder.h"

#include "corvex/common/files/FileHelper.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

TemporaryFolder::TemporaryFolder(const QString &name)
    : TemporaryFolder(QDir::tempPath(), name)
{ }

TemporaryFolder::TemporaryFolder(const QString &parent, const QString &name)
{
    removeAbandoned(parent, name + u"-??????"_s);
    bool isMade = false;
    do {
        QTemporaryDir folder(QDir(parent).filePath(name + u"-XXXXXX"_s));
        folder.setAutoRemove(false);
        isMade = folder.isValid();
        m_path = isMade ? folder.path() : QString();
        m_error = folder.errorString();
        // Another program may have removed it as abandoned before it was locked.
    } while (isMade && !m_lock.take(m_path, FolderLock::Kind::Exclusive));
}

TemporaryFolder::~TemporaryFolder()
{
    if (isValid()) {
        FileHelper::removeDirectory(m_path);
    }
}

void TemporaryFolder::removeAbandoned(const QString &parent, const QString &pattern)
{
    const QFileInfoList folders =
        QDir(parent).entryInfoList({pattern}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &folder : folders) {
        if (folder.ownerId() != geteuid()) {
            continue;
        }
        const FolderLock lock(folder.filePath(), FolderLock::Kind::Exclusive);
        if (lock.isReal()) {
            FileHelper::removeDirectory(folder.filePath());
        }
    }
}

} // namespace Halvane::Corvex::Common
