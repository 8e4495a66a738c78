// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Common {

//! Identifies a file and its contents, to detect changes. Times are ignored: some file systems count whole
//! seconds, and some programs reset them.
class CORVEX_COMMON_EXPORT FileStamp
{
public:
    //! The stamp of a missing file.
    FileStamp() = default;
    //! The stamp of the file in its current state; reads all of it.
    static FileStamp of(const QString &path);

    friend bool operator==(const FileStamp &, const FileStamp &) = default;

private:
    quint64 m_device = 0;
    quint64 m_number = 0; //!< inode number on the device
    qint64 m_size = -1;
    size_t m_digest = 0; //!< only valid in this process
};

} // namespace Halvane::Corvex::Common
