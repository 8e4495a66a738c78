// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Common {

//! Zip archives. Equal input gives equal bytes: entries carry one fixed time and one fixed mode. An archive
//! is written beside its place and moved there when it is complete.
class CORVEX_ZIP_EXPORT ZipHelper
{
public:
    //! Packs the files, each under its file name. The comment is the archive's. The level is 0 (stored) to 9;
    //! more is taken as 9. False when there is no file, one is missing or two have one
    //! name.
    static bool zipWithFiles(const QStringList &files, const QString &zipPath, const QString &comment,
                             int level, QString *error = nullptr);

    //! Packs bytes as a file of that name, alone in its archive. The level is 1 to 9, as above.
    static bool zipWithBytes(const QByteArray &bytes, const QString &name, const QString &zipPath,
                             const QString &comment, int level, QString *error = nullptr);

    //! Packs all files below the folder under their paths relative to it, in the order of these. Links are
    //! left out.
    static bool zipDirectory(const QString &directory, const QString &zipPath, QString *error = nullptr);

    //! Unpacks into the folder, which is made when it is missing. Refuses, before it writes anything, an
    //! archive with a name that is absolute or leads out of the folder, with links, with two entries of one
    //! name, or that would grow beyond measure.
    static bool unzip(const QString &zipPath, const QString &directory, QString *error = nullptr);

    //! The names of the entries in the order of the archive; empty when it cannot be read.
    static QStringList entryNames(const QString &zipPath, QString *error = nullptr);
};

} // namespace Halvane::Corvex::Common
