// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace Halvane::Corvex::Common {

//! Files and folders. Errors are texts for the user that name the file and the reason.
class CORVEX_COMMON_EXPORT FileHelper
{
public:
    //! A folder for temporary files that belongs to this user alone; it exists.
    static QString getStandardTemporatyLocation();

    //! Removes the folder and all below it. A link is removed, never what it leads to. True when nothing is
    //! left, which includes a path where nothing was. Refuses an empty path, the root, and the home folder
    //! with all above it.
    static bool removeDirectory(const QString &path);

    //! Makes the folder and those above it that are missing. True for one that is there, too.
    static bool makeFolder(const QString &path, QString *error = nullptr);

    //! Copies a file to a place where none is. False, with nothing left there, unless every byte arrived.
    static bool copyFile(const QString &source, const QString &target, QString *error = nullptr);

    //! Why a file did not take all bytes. A disk that filled up leaves no text in the file.
    static QString writeError(const QFileDevice &file);

    //! Replaces the file in one step, see SafeFile.
    static bool writeFile(const QString &path, const QByteArray &bytes, QString *error = nullptr);

    //! Writes one value as the device reads it: a QDataStream of version Qt_4_7, big-endian, through
    //! qCompress when compressed. False for a value that this form cannot hold, too.
    static bool variantToFile(const QVariant &value, const QString &path, bool compressed,
                              QString *error = nullptr);
    //! Reads what variantToFile wrote, compressed or not. Takes values made of numbers, texts, bytes, dates,
    //! colours, points, sizes and rectangles, and lists and maps of these; any other file gives ok false.
    static QVariant fileToVariant(const QString &path, bool *ok = nullptr);

    //! In lower case, without a full stop.
    static const QStringList &validImageExtensions();
    //! Whether the file is an image and its bytes are of the kind that its extension tells. The format is
    //! that of the bytes ("png", "jpg", "bmp", "gif", "svg"), or empty when they are none of these. Needs no
    //! application object.
    static bool isValidImage(const QString &path, QString *format = nullptr);

    //! The digest as 32 hexadecimal digits in lower case; empty when the file cannot be read.
    static QString md5(const QString &path);
};

} // namespace Halvane::Corvex::Common
