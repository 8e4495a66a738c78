// SPDX-License-Identifier: MIT
#pragma once

namespace Halvane::Corvex::Tool {

//! What the program tells its caller. The numbers are a contract with scripts.
enum class ExitCode {
    Done = 0,
    Problems = 1, //!< of the project, or of a value or an expression
    Usage = 2,
    File = 3, //!< one that cannot be read or written
};

} // namespace Halvane::Corvex::Tool
