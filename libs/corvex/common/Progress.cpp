// SPDX-License-Identifier: MIT
#include "corvex/common/Progress.h"

#include <algorithm>

namespace Halvane::Corvex::Common {

int Progress::State::percent() const
{
    constexpr int all = 100;
    return total > 0 ? int(std::clamp<qint64>(done, 0, total) * all / total) : -1;
}

void Progress::begin(const QString &text, qint64 total)
{
    const std::lock_guard lock(m_mutex);
    m_text = text;
    m_total = total;
    m_done = 0;
}

Progress::State Progress::state() const
{
    const std::lock_guard lock(m_mutex);
    return {m_text, m_done, m_total};
}

} // namespace Halvane::Corvex::Common
