// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Halvane::Corvex::Designer {

//! The text with its placeholders filled in one pass, since a value may look like a placeholder itself. Takes
//! four values at most.
QString filledText(const QString &text, const QStringList &values);

} // namespace Halvane::Corvex::Designer
