// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <csignal>

namespace Halvane::Corvex::Tool {

/*! While it lives, the wish that the program shall end (Ctrl+C, or a signal from elsewhere) is noted and not
    followed, so that what has begun in the folder of a project can be ended or taken back. Reading that waits
    for input gives up then, and the standard input ends. */
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
    std::array<struct sigaction, signalNumbers.size()> m_before{};
};

} // namespace Halvane::Corvex::Tool
