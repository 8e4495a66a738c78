// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Halvane::Corvex::Designer {

//! Fills all placeholders in one pass, because a value may look like a placeholder. Accepts at most four
//! values.
QString filledText(const QString &text, const QStringList &values);

} // namespace Halvane::Corvex::Designer
