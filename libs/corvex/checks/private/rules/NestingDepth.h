// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace Halvane::Corvex::Designer {

//! The maximum nesting of code: parentheses, and operators whose results are operands of the next one.
//! Compilers recurse as deep as the code, and refuse code that is too deep for them.
inline constexpr qsizetype deepestNesting = 1000;

//! The position in \a code where it is nested deeper than that; -1 if it never is.
qsizetype findTooDeepNesting(QStringView code);

} // namespace Halvane::Corvex::Designer
