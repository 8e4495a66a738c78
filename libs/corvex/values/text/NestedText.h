// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringView>

//! Free text inside a form that has separators of its own. Text without them stands plain; what would end a
//! field, an item or a list too early is written as a percent sign and its UTF-8 bytes ("%3B" for ";"), and
//! so is a percent sign that would read as one of these escapes. Only they are taken back: "100%" and "%41"
//! are plain text.
namespace Halvane::Corvex::Designer::NestedText {

//! For a value of a group, which cannot hold ":", ";" or "|", nor blanks at its ends.
CORVEX_EXPORT QString toField(const QString &text);
//! For an item of a list joined with " | ": only a "|" that stands alone between blanks or ends divides
//! items, so that pairs like "pump1|speed" stand plain.
CORVEX_EXPORT QString toItem(const QString &text);
CORVEX_EXPORT QString fromField(QStringView field);

//! What a list writes for its only item when that item's text is empty, since the empty text is the empty
//! list. It reads back as the empty text.
inline constexpr QStringView loneEmptyItem = u"%00";

//! Whether the character divides items, as toItem() says.
CORVEX_EXPORT bool isItemSeparator(QStringView text, qsizetype index);

} // namespace Halvane::Corvex::Designer::NestedText
