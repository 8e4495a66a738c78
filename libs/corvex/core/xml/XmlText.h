// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Designer::XmlText {

//! Where the first character stands that no XML file can hold (a control character, half a surrogate pair,
//! U+FFFE, U+FFFF); -1 when all can be stored.
CORVEX_EXPORT qsizetype indexOfUnstorable(QStringView text);

//! Why no file can hold \a value, for the user: a character of that kind, or its size. Empty when one can.
CORVEX_EXPORT QString storageProblem(const QString &value);

//! How many bytes putAttribute() writes at most for a UTF-16 unit.
constexpr qsizetype longestPerUnit = 6;

/*! Writes \a text to \a out in UTF-8 as the inside of an attribute between double quotes: markup characters
   as entities, line ends and tabs as character references, so that they survive the parser's normalisation.
   What no XML file can hold becomes U+FFFD. Returns where it ended. */
CORVEX_EXPORT char *putAttribute(char *out, QStringView text);

//! How many bytes that takes.
CORVEX_EXPORT qsizetype attributeSize(QStringView text);

//! Appends the same for bytes that are UTF-8 already.
CORVEX_EXPORT void appendAttribute(QByteArray &bytes, QByteArrayView utf8);

} // namespace Halvane::Corvex::Designer::XmlText
