// SPDX-License-Identifier: MIT
#include "corvex/common/files/FolderLock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Halvane::Corvex::Common {

namespace {

constexpr unsigned long pause = 10; // milliseconds between attempts

} // namespace

bool FolderLock::open(const QString &folder)
{
    release();
    m_file = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    return m_file >= 0;
}

bool FolderLock::isOn(const QString &folder) const
{
    struct stat locked = {};
    struct stat named = {};
    return fstat(m_file, &locked) == 0 && stat(QFile::encodeName(folder).constData(), &named) == 0
           && locked.st_dev == named.st_dev && locked.st_ino == named.st_ino;
}

bool FolderLock::take(const QString &folder, Kind kind, int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    const int operation = (kind == Kind::Exclusive ? LOCK_EX : LOCK_SH) | LOCK_NB;
    while (open(folder)) {
        const bool isLocked = flock(m_file, operation) == 0;
        const bool isBusy = !isLocked && (errno == EWOULDBLOCK || errno == EINTR);
        // During the wait the folder may have been renamed, and another one may have taken its name.
        if (!isBusy && isOn(folder)) {
            m_kind = kind;
            m_isReal = isLocked;
            return true;
        }
        release();
        if (isBusy) {
            if (deadline.hasExpired()) {
                return false;
            }
            QThread::msleep(pause);
        }
    }
    return false;
}

void FolderLock::release()
{
    if (m_file >= 0) {
        close(m_file);
    }
    m_file = -1;
    m_kind = Kind::None;
    m_isReal = false;
}

} // namespace Halvane::Corvex::Common
