// SPDX-License-Identifier: MIT
#include "FolderLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Halvane::Corvex::Tool {

namespace {

//! Waiting goes on when a signal interrupts it.
bool lock(int file, int operation)
{
    int result = 0;
    do {
        result = flock(file, operation);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

} // namespace

FolderLock::FolderLock(const QString &folder, Mode mode)
    : m_file(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    // Some file systems know no locks. Whoever works there has to take turns by himself.
    , m_isTaken(m_file >= 0 && !lock(m_file, mode == Mode::Try ? LOCK_EX | LOCK_NB : LOCK_EX)
                && errno == EWOULDBLOCK)
{ }

FolderLock::~FolderLock()
{
    if (m_file >= 0) {
        close(m_file);
    }
}

} // namespace Halvane::Corvex::Tool
