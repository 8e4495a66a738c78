// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Common {

/*! Which file a path led to and what it held. Times tell nothing: some file systems count whole seconds, and
   some programs put them back. */
class CORVEX_COMMON_EXPORT FileStamp
{
public:
    //! Of no file.
    FileStamp() = default;
    //! Of the file as it is now; reads all of it.
    static FileStamp of(const QString &path);

    friend bool operator==(const FileStamp &, const FileStamp &) = default;

private:
    quint64 m_device = 0;
    quint64 m_number = 0; //!< among the files of the device
    qint64 m_size = -1;
    size_t m_digest = 0; //!< means nothing to another process
};

} // namespace Halvane::Corvex::Common
