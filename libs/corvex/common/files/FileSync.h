// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Common::FileSync {

/*! Steps of which a power cut leaves nothing half: what was synced is on the disk, and a name leads to the
   old file or to the new one. Each is false with errno, and with nothing changed, when it fails. */

//! Brings the contents of a file, or the names in a folder, to the disk. A file system that cannot is as
//! good.
CORVEX_COMMON_EXPORT bool sync(const QString &path);
//! The same of all files and folders below the folder, and of itself.
CORVEX_COMMON_EXPORT bool syncAll(const QString &folder);

//! Gives a file or folder another name on the same disk, which nothing may have.
CORVEX_COMMON_EXPORT bool move(const QString &from, const QString &to);
//! The same, in place of the file that has it.
CORVEX_COMMON_EXPORT bool replace(const QString &from, const QString &to);
//! Exchanges two files or folders in one step; errno is ENOTSUP where the file system cannot.
CORVEX_COMMON_EXPORT bool exchange(const QString &first, const QString &second);
//! Gives a file a second name, or makes a copy that is on the disk where files have only one.
CORVEX_COMMON_EXPORT bool link(const QString &from, const QString &to);

//! The target of a symbolic link exactly as the link stores it, so it may be relative; empty for other files.
CORVEX_COMMON_EXPORT QString linkTarget(const QString &path);

//! The reason that errno tells.
CORVEX_COMMON_EXPORT QString reason();

} // namespace Halvane::Corvex::Common::FileSync
