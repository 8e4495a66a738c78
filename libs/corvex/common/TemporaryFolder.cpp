// SPDX-License-Identifier: MIT
#include "corvex/common/TemporaryFolder.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

// So long a program may take, in seconds, from making a folder to locking it.
constexpr qint64 timeToLock = 60;
const QString lockName = u".lock"_s;

bool isAbandoned(const QFileInfo &folder)
{
    const QString path = QDir(folder.filePath()).filePath(lockName);
    if (!QFileInfo::exists(path)) {
        return folder.lastModified().secsTo(QDateTime::currentDateTime()) > timeToLock;
    }
    QLockFile lock(path);
    lock.setStaleLockTime(0); // a lock gets old with its program alone
    return lock.tryLock(0);
}

void removeAbandoned(const QString &name)
{
    const QFileInfoList folders =
        QDir(QDir::tempPath()).entryInfoList({name + u"-??????"_s}, QDir::Dirs | QDir::NoSymLinks);
    for (const QFileInfo &folder : folders) {
        if (folder.ownerId() == getuid() && isAbandoned(folder)) {
            QDir(folder.filePath()).removeRecursively();
        }
    }
}

} // namespace

TemporaryFolder::TemporaryFolder(const QString &name)
    : m_folder(QDir::temp().filePath(name + u"-XXXXXX"_s))
    , m_lock(std::make_unique<QLockFile>(m_folder.filePath(lockName)))
{
    m_lock->setStaleLockTime(0);
    if (isValid()) {
        m_lock->tryLock(0);
    }
    removeAbandoned(name);
}

TemporaryFolder::~TemporaryFolder() = default;

} // namespace Halvane::Corvex::Common
