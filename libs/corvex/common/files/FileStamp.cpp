// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileStamp.h"

#include <QFile>
#include <QHash>

#include <fcntl.h>
#include <sys/stat.h>

namespace Halvane::Corvex::Common {

FileStamp FileStamp::of(const QString &path)
{
    constexpr qint64 blockSize = qint64(1) << 20;
    FileStamp stamp;
    // O_NONBLOCK: opening a pipe would block until its other end is opened.
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QFile file;
    struct stat status = {};
    if (handle < 0
        || !file.open(handle, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)
        || fstat(handle, &status) != 0 || !S_ISREG(status.st_mode)) {
        return stamp;
    }
    stamp.m_device = status.st_dev;
    stamp.m_number = status.st_ino;
    stamp.m_size = status.st_size;
    for (QByteArray block = file.read(blockSize); !block.isEmpty(); block = file.read(blockSize)) {
        stamp.m_digest = qHash(block, stamp.m_digest);
    }
    return stamp;
}

} // namespace Halvane::Corvex::Common
