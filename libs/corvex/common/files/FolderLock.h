// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Common {

/*! Keeps other programs that use this lock from working in a folder, or from changing it.

    The lock is on the folder itself: it leaves no file, needs no write permission, follows the folder when it
    is renamed, and ends with the process in any case. Two locks in one process exclude each other, too. File
    systems without locks always grant it.
*/
class CORVEX_COMMON_EXPORT FolderLock
{
public:
    enum class Kind {
        None,
        Shared,   //!< other readers are allowed
        Exclusive //!< nobody else is allowed
    };

    FolderLock() = default;
    FolderLock(const QString &folder, Kind kind, int milliseconds = 0) { take(folder, kind, milliseconds); }
    ~FolderLock() { release(); }
    Q_DISABLE_COPY_MOVE(FolderLock)

    //! Releases the current lock and takes this one. Returns false if others hold it for longer than \a
    //! milliseconds, or if the folder does not exist.
    bool take(const QString &folder, Kind kind, int milliseconds = 0);
    void release();

    Kind kind() const { return m_kind; }
    //! Whether the path leads to the locked folder. Another program may have replaced it by a new one.
    bool isOn(const QString &folder) const;
    //! False if the file system does not support locks and only pretended to grant one.
    bool isReal() const { return m_isReal; }

private:
    bool open(const QString &folder);

    int m_file = -1;
    Kind m_kind = Kind::None;
    bool m_isReal = false;
};

} // namespace Halvane::Corvex::Common
