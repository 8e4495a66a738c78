// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileSync.h"

#include "corvex/common/files/FileHelper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace Halvane::Corvex::Common::FileSync {

namespace {

//! From this number of files on, syncing the whole file system is faster.
constexpr qsizetype many = 64;

bool isUnsupported()
{
    return errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
}

bool syncWith(const QString &path, int (*operation)(int))
{
    const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return errno == EACCES; // a file that is writable but unreadable is not an error here
    }
    const bool isSynced = operation(file) == 0 || isUnsupported();
    const int error = errno;
    close(file);
    errno = error;
    return isSynced;
}

bool rename(const QString &from, const QString &to, unsigned flags)
{
    return renameat2(AT_FDCWD, QFile::encodeName(from).constData(), AT_FDCWD,
                     QFile::encodeName(to).constData(), flags)
           == 0;
}

} // namespace

bool sync(const QString &path)
{
    return syncWith(path, fsync);
}

bool syncAll(const QString &folder)
{
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    if (entries.size() >= many) {
        return syncWith(folder, syncfs);
    }
    for (const QFileInfo &entry : entries) {
        const bool isFolder = entry.isDir() && !entry.isSymLink();
        if (isFolder ? !syncAll(entry.filePath()) : entry.isFile() && !sync(entry.filePath())) {
            return false;
        }
    }
    return sync(folder);
}

bool move(const QString &from, const QString &to)
{
    if (rename(from, to, RENAME_NOREPLACE)) {
        return true;
    }
    if (!isUnsupported()) {
        return false;
    }
    if (const QFileInfo target(to); target.exists() || target.isSymLink()) {
        errno = EEXIST;
        return false;
    }
    return rename(from, to, 0);
}

bool replace(const QString &from, const QString &to)
{
    return rename(from, to, 0);
}

bool exchange(const QString &first, const QString &second)
{
    if (rename(first, second, RENAME_EXCHANGE)) {
        return true;
    }
    if (isUnsupported()) {
        errno = ENOTSUP;
    }
    return false;
}

bool link(const QString &from, const QString &to)
{
    return ::link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0
           || (FileHelper::copyFile(from, to) && sync(to));
}

bool isSame(const QString &first, const QString &second)
{
    struct stat one = {};
    struct stat other = {};
    return lstat(QFile::encodeName(first).constData(), &one) == 0
           && lstat(QFile::encodeName(second).constData(), &other) == 0 && one.st_dev == other.st_dev
           && one.st_ino == other.st_ino;
}

QString linkTarget(const QString &path)
{
    std::error_code error;
    const std::filesystem::path target =
        std::filesystem::read_symlink(QFile::encodeName(path).toStdString(), error);
    return QFile::decodeName(target.c_str());
}

QString reason()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace Halvane::Corvex::Common::FileSync
