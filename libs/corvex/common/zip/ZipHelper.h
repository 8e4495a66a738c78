// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Common {

class Progress;

//! Zip archives. Equal input gives equal bytes: all entries have the same time and the same mode. An archive
//! is written to a temporary file and renamed when it is complete. If the
//! progress, which may be null, is cancelled, packing fails soon and leaves no file.
class CORVEX_ZIP_EXPORT ZipHelper
{
public:
    //! Packs the files, each under its file name. The comment belongs to the archive. The level is 0 (stored)
    //! to 9; higher levels count as 9. Returns false if there are no files, one is missing or two have the
    //! same name.
    static bool zipWithFiles(const QStringList &files, const QString &zipPath, const QString &comment,
                             int level, QString *error = nullptr, Progress *progress = nullptr);

    //! Packs bytes as the only file of an archive. The level is 1 to 9, as above.
    static bool zipWithBytes(const QByteArray &bytes, const QString &name, const QString &zipPath,
                             const QString &comment, int level, QString *error = nullptr,
                             Progress *progress = nullptr);

    //! Packs all files below the folder, by their relative paths and in the order of these. Links are
    //! skipped.
    static bool zipDirectory(const QString &directory, const QString &zipPath, QString *error = nullptr,
                             Progress *progress = nullptr);

    //! Unpacks into the folder, which is created if necessary. Before anything is written, refuses an archive
    //! with absolute names, names that lead out of the folder, links or duplicate names, and one whose
    //! contents would be too large.
    static bool unzip(const QString &zipPath, const QString &directory, QString *error = nullptr);

    //! The names of the entries in archive order; empty if the archive cannot be read.
    static QStringList entryNames(const QString &zipPath, QString *error = nullptr);
};

} // namespace Halvane::Corvex::Common
