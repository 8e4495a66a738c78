// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace Halvane::Corvex::Common {

//! Files and folders. Errors are texts for the user with the file and the reason.
class CORVEX_COMMON_EXPORT FileHelper
{
public:
    //! An existing folder for temporary files that only this user can access.
    static QString getStandardTemporatyLocation();

    //! Removes the folder and everything below it. Links are removed, but not their targets. Returns true if
    //! nothing is left, even if nothing existed. Refuses an empty path, the root, and the home folder and its
    //! parents.
    static bool removeDirectory(const QString &path);

    //! Creates the folder and its missing parents. Returns true if it exists already.
    static bool makeFolder(const QString &path, QString *error = nullptr);

    //! Copies a file to a path that must not exist. On failure returns false and leaves no partial file.
    static bool copyFile(const QString &source, const QString &target, QString *error = nullptr);

    //! Why a write failed. QFileDevice has no text for a full disk.
    static QString writeError(const QFileDevice &file);

    //! Reads the whole file. On failure returns false, with a text for the user.
    static bool readFile(const QString &path, QByteArray *bytes, QString *error = nullptr);
    //! Replaces the file in one step, see SafeFile.
    static bool writeFile(const QString &path, const QByteArray &bytes, QString *error = nullptr);

    //! Writes one value in the form that the device reads: a big-endian QDataStream of version Qt_4_7,
    //! optionally compressed with qCompress. Also returns false if the form does not support the value.
    static bool variantToFile(const QVariant &value, const QString &path, bool compressed,
                              QString *error = nullptr);
    //! Reads the output of variantToFile, compressed or not. Accepts numbers, texts, bytes, dates, colours,
    //! points, sizes, rectangles, and lists and maps of these; for any other file ok is false.
    static QVariant fileToVariant(const QString &path, bool *ok = nullptr);

    //! In lower case, without the dot.
    static const QStringList &validImageExtensions();
    //! Whether the file is an image whose contents match its extension. The format is taken from the contents
    //! ("png", "jpg", "bmp", "gif", "svg"), or empty for other formats. Works without an application object.
    static bool isValidImage(const QString &path, QString *format = nullptr);

    //! The digest as 32 lower case hexadecimal digits; empty if the file cannot be read.
    static QString md5(const QString &path);
};

} // namespace Halvane::Corvex::Common
