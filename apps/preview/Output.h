// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Preview {

//! As the program corvex has them, which passes them on.
enum class Exit { Done = 0, Problems = 1, Usage = 2, File = 3 };

//! A line to standard error, as the program corvex writes it.
void complain(const QString &message);
//! A line to standard output.
void print(const QString &line);

} // namespace Halvane::Corvex::Preview
