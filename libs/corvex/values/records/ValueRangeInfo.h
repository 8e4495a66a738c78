// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! The two ends of a scale, such as the voltage range of a sensor, and the limits for both. The first end may
//! be the greater one.
class CORVEX_EXPORT ValueRangeInfo
{
public:
    ValueRangeInfo() = default;
    //! The values themselves become the limits.
    ValueRangeInfo(double value1, double value2);
    ValueRangeInfo(double value1, double value2, double minValue, double maxValue);
    //! "value1: 0, value2: 50, min: 0, max: 100"
    explicit ValueRangeInfo(const QString &text, bool *ok = nullptr);

    double value1() const { return m_value1; }
    void setValue1(double value) { m_value1 = value; }
    double value2() const { return m_value2; }
    void setValue2(double value) { m_value2 = value; }
    double minValue() const { return m_minValue; }
    void setMinValue(double value) { m_minValue = value; }
    double maxValue() const { return m_maxValue; }
    void setMaxValue(double value) { m_maxValue = value; }

    QString toString() const;
    //! Both values are within the limits.
    bool isValid() const;

    friend bool operator==(const ValueRangeInfo &, const ValueRangeInfo &) = default;

private:
    double m_value1 = 0;
    double m_value2 = 0;
    double m_minValue = 0;
    double m_maxValue = 0;
};

} // namespace Halvane::Corvex::Designer
