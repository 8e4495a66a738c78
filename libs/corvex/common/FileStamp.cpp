// SPDX-License-Identifier: MIT
#include "corvex/common/FileStamp.h"

#include <QFile>
#include <QHash>

#include <sys/stat.h>

namespace Halvane::Corvex::Common {

FileStamp FileStamp::of(const QString &path)
{
    constexpr qint64 blockSize = qint64(1) << 20;
    FileStamp stamp;
    QFile file(path);
    struct stat status = {};
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || fstat(file.handle(), &status) != 0) {
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
