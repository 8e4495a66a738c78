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
    //! Base64 of the text in UTF-8. A surrogate without its partner has no UTF-8 form and is lost.
    static QString convertToBase64(const QString &text);
    //! Accepts exactly the form that convertToBase64 writes: padded, without spaces, with UTF-8 inside. For
    //! anything else the text is empty and ok is false.
    static QString convertFromBase64(const QString &base64, bool *ok = nullptr);

    //! The text escaped for double quotes in QML or JavaScript.
    static QString toQmlValueString(const QString &text);

    //! The names that no object may have: the keywords of the device's script language, its global objects
    //! and functions, and the objects that the device adds. Sorted.
    static const QStringList &reservedWords();
    //! Compares case-sensitively.
    static bool isReservedWord(const QString &name);

    //! The order in which people expect names: case-insensitive, with runs of digits of any length compared
    //! as numbers ("pump2" before "Pump10"). Two different texts never compare as equal.
    static bool naturalLess(QStringView left, QStringView right);
    static void sortStringList(QStringList &list);
    //! Compares the parts before the last dot in natural order, then the extensions.
    static bool fileNameLess(QStringView left, QStringView right);
    static void sortFileNames(QStringList &names);

    //! Replaces each "\r\n" and each lone "\r" by "\n".
    static QString normalizeLineEnds(const QString &text);
    //! Replaces line endings of all kinds with "\r\n".
    static QString toCrLf(const QString &text);

    //! The number at the end of the name; -1 for a name without a number. The stem is the text before it, so
    //! that stem and number together give the name: leading zeros belong to the stem, as do all digits before
    //! the last 18.
    static qint64 numberFromString(QStringView name, QString *stem = nullptr);

    //! Encrypts with a key that is part of this program. This prevents edits of a build tag by hand and
    //! detects changed bytes; it keeps nothing secret. Equal texts give equal Base64.
    static QString encryptString(const QString &text);
    static QString decryptString(const QString &cipher, bool *ok = nullptr);

    //! Whether the name, or its part before the first dot, is a Windows device name (AUX, COM1 ...), in any
    //! case.
    static bool isReservedDeviceName(QStringView fileName);
    //! The characters of the name that file names in a project may not contain, each once, in order. Letters
    //! and digits of every script are allowed, as are spaces and most ASCII punctuation.
    static QStringList forbiddenFileNameCharacters(QStringView name);
    //! At least two characters, none of them forbidden, and the first is neither a space nor a dot.
    static bool isValidFileNameFormat(QStringView name);
};

} // namespace Halvane::Corvex::Common
