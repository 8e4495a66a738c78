// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Common::FileSync {

//! Steps that a power failure cannot leave half done: synced data is on the disk, and a name leads to either
//! the old or the new file. On failure each returns false with errno and changes nothing.

//! Flushes the contents of a file, or the names in a folder, to the disk. Succeeds on file systems that
//! cannot sync.
CORVEX_COMMON_EXPORT bool sync(const QString &path);
//! Syncs all files and folders below the folder, and the folder itself.
CORVEX_COMMON_EXPORT bool syncAll(const QString &folder);

//! Renames a file or folder on the same disk. The new name must not exist.
CORVEX_COMMON_EXPORT bool move(const QString &from, const QString &to);
//! Renames a file and replaces the file that has the name.
CORVEX_COMMON_EXPORT bool replace(const QString &from, const QString &to);
//! Exchanges two files or folders in one step. errno is ENOTSUP if the file system cannot do that.
CORVEX_COMMON_EXPORT bool exchange(const QString &first, const QString &second);
//! Creates a hard link or, if the file system has none, a synced copy.
CORVEX_COMMON_EXPORT bool link(const QString &from, const QString &to);

//! Whether both paths name one file, as two spellings do on a case-insensitive disk. Does not follow links.
CORVEX_COMMON_EXPORT bool isSame(const QString &first, const QString &second);

//! The target of a symbolic link exactly as stored, possibly relative; empty for other files.
CORVEX_COMMON_EXPORT QString linkTarget(const QString &path);

//! The text for errno.
CORVEX_COMMON_EXPORT QString reason();

} // namespace Halvane::Corvex::Common::FileSync
