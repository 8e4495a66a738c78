// SPDX-License-Identifier: MIT
#pragma once

namespace Halvane::Corvex::Tool {

//! The exit codes of the program. Scripts rely on the numbers.
enum class ExitCode {
    Done = 0,
    Problems = 1, //!< in the project, a value or an expression
    Usage = 2,
    File = 3, //!< a file cannot be read or written
};

} // namespace Halvane::Corvex::Tool
