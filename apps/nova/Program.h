// SPDX-License-Identifier: MIT
#pragma once

namespace Halvane::Corvex::Nova {

//! The program: reads the command line, finds what is installed, and shows the window.
class Program
{
public:
    //! Needs a QApplication. Returns the exit code.
    static int run();
};

} // namespace Halvane::Corvex::Nova
