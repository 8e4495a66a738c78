// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Designer::XmlText {

//! The position of the first character that XML cannot store (a control character, half a surrogate pair,
//! U+FFFE, U+FFFF); -1 if the whole text can be stored.
CORVEX_EXPORT qsizetype indexOfUnstorable(QStringView text);

//! Why a file cannot store \a value, for the user: such a character, or its size. Empty if it can.
CORVEX_EXPORT QString storageProblem(const QString &value);

//! The maximum number of bytes that putAttribute() writes for a UTF-16 unit.
constexpr qsizetype longestPerUnit = 6;

//! Writes \a text in UTF-8 to \a out, escaped for an attribute in double quotes: markup characters as
//! entities, line endings and tabs as character references, so that the parser's normalisation preserves
//! them. Characters that XML cannot store become U+FFFD. Returns the end.
CORVEX_EXPORT char *putAttribute(char *out, QStringView text);

//! The number of bytes that putAttribute() writes.
CORVEX_EXPORT qsizetype attributeSize(QStringView text);

//! Appends the same for bytes that are already UTF-8.
CORVEX_EXPORT void appendAttribute(QByteArray &bytes, QByteArrayView utf8);

} // namespace Halvane::Corvex::Designer::XmlText
