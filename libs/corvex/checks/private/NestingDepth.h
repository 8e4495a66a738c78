// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace Halvane::Corvex::Designer {

/*! How deep code may be nested: parentheses, and operators whose results are what the next one works on.
   Compilers go down as deep as the code does, and refuse what takes them too far. */
inline constexpr qsizetype deepestNesting = 1000;

//! The place in \a code at which it is nested deeper than that, -1 when it never is.
qsizetype findTooDeepNesting(QStringView code);

} // namespace Halvane::Corvex::Designer
