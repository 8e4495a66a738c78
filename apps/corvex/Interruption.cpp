// SPDX-License-Identifier: MIT
#include "Interruption.h"

namespace Halvane::Corvex::Tool {

namespace {

volatile std::sig_atomic_t isNoted = 0;

} // namespace

Interruption::Interruption()
{
    struct sigaction note = {};
    note.sa_handler = [](int) { isNoted = 1; };
    // Without SA_RESTART, so that reading ends.
    for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
        sigaction(signalNumbers[i], &note, &m_before[i]);
    }
}

Interruption::~Interruption()
{
    for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
        sigaction(signalNumbers[i], &m_before[i], nullptr);
    }
}

bool Interruption::isWanted()
{
    return isNoted;
}

} // namespace Halvane::Corvex::Tool
