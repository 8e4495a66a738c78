// SPDX-License-Identifier: MIT
#include "FolderLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Halvane::Corvex::Tool {

FolderLock::FolderLock(const QString &folder, Mode mode)
    : m_file(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    // Some file systems know no locks. Whoever works there has to take turns by himself.
    , m_isTaken(m_file >= 0 && flock(m_file, mode == Mode::Try ? LOCK_EX | LOCK_NB : LOCK_EX) != 0
                && errno == EWOULDBLOCK)
{ }

FolderLock::~FolderLock()
{
    if (m_file >= 0) {
        close(m_file);
    }
}

} // namespace Halvane::Corvex::Tool
