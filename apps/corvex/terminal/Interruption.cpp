// SPDX-License-Identifier: MIT
#include "terminal/Interruption.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace Halvane::Corvex::Tool {

namespace {

volatile std::sig_atomic_t isNoted = 0;
volatile std::sig_atomic_t nothing = -1; //!< descriptor of an empty file

} // namespace

void Interruption::note(int)
{
    const int before = errno;
    isNoted = 1;
    // A second signal ends the program at once.
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    for (const int number : signalNumbers) {
        sigaction(number, &action, nullptr);
    }
    // A read that starts later is not interrupted by a signal, so let it hit the end of input.
    if (nothing >= 0) {
        dup2(nothing, STDIN_FILENO);
    }
    errno = before;
}

Interruption::Interruption()
{
    nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    struct sigaction action = {};
    action.sa_handler = note;
    // Set no SA_RESTART, so that a blocking read returns.
    for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
        sigaction(signalNumbers[i], &action, &m_before[i]);
    }
}

Interruption::~Interruption()
{
    for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
        sigaction(signalNumbers[i], &m_before[i], nullptr);
    }
    if (nothing >= 0) {
        close(nothing);
        nothing = -1;
    }
}

bool Interruption::isWanted()
{
    return isNoted;
}

} // namespace Halvane::Corvex::Tool
