// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringView>

/*! Free text inside a form with separators. Text without separators is written unchanged. A character that
    would end a field, an item or a list too early is written as a percent sign and its UTF-8 bytes ("%3B" for
    ";"), and so is a percent sign that would look like one of these escapes. Only these escapes are decoded:
    "100%" and "%41" are plain text.
*/
namespace Halvane::Corvex::Designer::NestedText {

//! For a value in a group, which cannot contain ":", ";", "|" or surrounding spaces.
CORVEX_EXPORT QString toField(const QString &text);
//! For an item of a list joined with " | ". Only a "|" between spaces or ends separates items, so pairs like
//! "pump1|speed" need no escape.
CORVEX_EXPORT QString toItem(const QString &text);
CORVEX_EXPORT QString fromField(QStringView field);

//! The text of a list whose only item is an empty text, because the empty text is the empty list.
inline constexpr QStringView loneEmptyItem = u"%00";

//! Whether the character separates items, as defined for toItem().
CORVEX_EXPORT bool isItemSeparator(QStringView text, qsizetype index);

} // namespace Halvane::Corvex::Designer::NestedText
