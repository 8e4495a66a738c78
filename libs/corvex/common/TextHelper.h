// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Common {

//! Text forms, names and orders that the library and its plug-ins share. Nothing here depends on a locale.
class CORVEX_COMMON_EXPORT TextHelper
{
public:
    //! Base64 of the UTF-8 bytes of the text. A surrogate without its partner cannot be told in UTF-8 and is
    //! lost.
    static QString convertToBase64(const QString &text);
    //! Takes exactly what convertToBase64 writes: padded, without blanks, UTF-8 inside. Anything else gives
    //! an empty text and ok false.
    static QString convertFromBase64(const QString &base64, bool *ok = nullptr);

    //! The text as it must stand between double quotes in QML or JavaScript.
    static QString toQmlValueString(const QString &text);

    //! The words that no object can be called: those of the script language on the device, its global objects
    //! and functions, and the objects that the device adds. Sorted.
    static const QStringList &reservedWords();
    //! Compares case-sensitively.
    static bool isReservedWord(const QString &name);

    //! The order that people expect of names: letters of either case together, runs of digits of any length
    //! by the number they spell ("pump2" before "Pump10"). Texts that differ at all are never equal in it.
    static bool naturalLess(QStringView left, QStringView right);
    static void sortStringList(QStringList &list);
    //! Natural order of what stands before the last full stop, then of what stands behind it.
    static bool fileNameLess(QStringView left, QStringView right);
    static void sortFileNames(QStringList &names);

    //! Makes each "\r\n" and each "\r" alone a "\n".
    static QString normalizeLineEnds(const QString &text);
    //! The same with "\r\n" for every line end, whatever it was.
    static QString toCrLf(const QString &text);

    //! The number that ends the name, -1 when none does. The stem is what stands before it, so that stem and
    //! number give the name again: leading zeros belong to the stem, and so do digits beyond the last 18.
    static qint64 numberFromString(QStringView name, QString *stem = nullptr);

    //! Enciphers with a key that is part of this program: it keeps honest people from editing a build tag by
    //! hand and tells when a byte of it has changed. It keeps no secret. The same text always gives the same
    //! Base64.
    static QString encryptString(const QString &text);
    static QString decryptString(const QString &cipher, bool *ok = nullptr);

    //! Whether the name, or its part before the first full stop, is a device of Windows (AUX, COM1 ...), in
    //! any case.
    static bool isReservedDeviceName(QStringView fileName);
    //! The characters of the name that files of a project cannot have in theirs, each once, in order. Letters
    //! and digits of every script are allowed, blanks and most punctuation of ASCII.
    static QStringList forbiddenFileNameCharacters(QStringView name);
    //! At least two characters, none forbidden, the first neither a blank nor a full stop.
    static bool isValidFileNameFormat(QStringView name);
};

} // namespace Halvane::Corvex::Common
