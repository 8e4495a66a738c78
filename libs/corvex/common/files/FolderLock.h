// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Common {

/*! Keeps other programs from working in a folder, or from changing it, as long as they ask.

    The lock is on the folder itself: it leaves no file behind, needs no right to write, follows the folder
   when that gets another name, and goes with the process, however that ends. Two locks of one process keep
   each other out, too. A file system that knows no locks gives every one. */
class CORVEX_COMMON_EXPORT FolderLock
{
public:
    enum class Kind {
        None,
        Shared,   //!< others may read, too
        Exclusive //!< nobody else
    };

    FolderLock() = default;
    FolderLock(const QString &folder, Kind kind, int milliseconds = 0) { take(folder, kind, milliseconds); }
    ~FolderLock() { release(); }
    Q_DISABLE_COPY_MOVE(FolderLock)

    /*! Takes the lock in place of the one before, which is given up first. False when others still have it
       after \a milliseconds, or when there is no such folder. */
    bool take(const QString &folder, Kind kind, int milliseconds = 0);
    void release();

    Kind kind() const { return m_kind; }
    //! False for one that the file system only pretends to give.
    bool isReal() const { return m_isReal; }

private:
    bool open(const QString &folder);
    bool isStillThere(const QString &folder) const;

    int m_file = -1;
    Kind m_kind = Kind::None;
    bool m_isReal = false;
};

} // namespace Halvane::Corvex::Common
