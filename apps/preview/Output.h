// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Preview {

//! The same as the exit codes of corvex, which passes them on.
enum class Exit { Done = 0, Problems = 1, Usage = 2, File = 3 };

//! Writes a line to standard error in the style of corvex.
void complain(const QString &message);
//! Writes a line to standard output.
void print(const QString &line);

} // namespace Halvane::Corvex::Preview
