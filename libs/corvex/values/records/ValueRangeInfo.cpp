// SPDX-License-Identifier: MIT
#include "corvex/values/records/ValueRangeInfo.h"

#include "corvex/values/text/CommaText.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

ValueRangeInfo::ValueRangeInfo(double value1, double value2)
    : ValueRangeInfo(value1, value2, std::min(value1, value2), std::max(value1, value2))
{ }

ValueRangeInfo::ValueRangeInfo(double value1, double value2, double minValue, double maxValue)
    : m_value1(value1)
    , m_value2(value2)
    , m_minValue(minValue)
    , m_maxValue(maxValue)
{ }

ValueRangeInfo::ValueRangeInfo(const QString &text, bool *ok)
{
    static constexpr std::array keys{"value1"_L1, "value2"_L1, "min"_L1, "max"_L1};
    std::array<double, 4> values{};
    const bool parsed = CommaText::readFields(text, keys, values, ValueConversion::toReal);
    if (parsed) {
        *this = ValueRangeInfo(values[0], values[1], values[2], values[3]);
    }
    if (ok) {
        *ok = parsed;
    }
}

QString ValueRangeInfo::toString() const
{
    QString text;
    text.reserve(64);
    text.append("value1: "_L1);
    ValueConversion::appendReal(text, m_value1);
    text.append(", value2: "_L1);
    ValueConversion::appendReal(text, m_value2);
    text.append(", min: "_L1);
    ValueConversion::appendReal(text, m_minValue);
    text.append(", max: "_L1);
    ValueConversion::appendReal(text, m_maxValue);
    return text;
}

bool ValueRangeInfo::isValid() const
{
    return m_minValue <= m_value1 && m_value1 <= m_maxValue && m_minValue <= m_value2
           && m_value2 <= m_maxValue;
}

} // namespace Halvane::Corvex::Designer
