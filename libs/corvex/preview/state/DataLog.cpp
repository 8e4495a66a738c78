// SPDX-License-Identifier: MIT
#include "corvex/preview/state/DataLog.h"

#include <numeric>

namespace Halvane::Corvex::Preview {

void DataLog::setLimit(qsizetype mostPoints, WhenFull whenFull)
{
    m_mostPoints = std::max<qsizetype>(mostPoints, 1);
    m_whenFull = whenFull;
}

void DataLog::add(double value)
{
    if (m_points.size() >= m_mostPoints) {
        if (m_whenFull == WhenFull::StopLogging) {
            return;
        }
        if (m_whenFull == WhenFull::SaveAndReset) {
            m_points.clear();
        } else {
            m_points.removeFirst();
        }
    }
    m_points.append(value);
    ++m_revision;
    emit changed();
}

double DataLog::valueAt(qsizetype index) const
{
    return index < 0 ? 0.0 : m_points.value(m_points.size() - 1 - index, 0.0);
}

double DataLog::minimum() const
{
    return m_points.isEmpty() ? 0.0 : *std::ranges::min_element(m_points);
}

double DataLog::maximum() const
{
    return m_points.isEmpty() ? 0.0 : *std::ranges::max_element(m_points);
}

double DataLog::average() const
{
    return m_points.isEmpty() ? 0.0
                              : std::accumulate(m_points.cbegin(), m_points.cend(), 0.0) / double(count());
}

} // namespace Halvane::Corvex::Preview
