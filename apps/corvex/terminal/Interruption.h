// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <csignal>

namespace Halvane::Corvex::Tool {

//! While it exists, Ctrl+C and similar signals are recorded instead of ending the program, so that work in a
//! project folder can be completed or undone. Blocked reads return and standard input ends. A second signal
//! ends the program.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

    static bool isWanted();

private:
    static constexpr std::array signalNumbers{SIGINT, SIGTERM, SIGHUP};
    static void note(int);
    std::array<struct sigaction, signalNumbers.size()> m_before{};
};

} // namespace Halvane::Corvex::Tool
