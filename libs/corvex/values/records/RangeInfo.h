// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! The lower and upper limit of a value.
class CORVEX_EXPORT RangeInfo
{
public:
    RangeInfo() = default;
    RangeInfo(double minimum, double maximum);
    //! "maximum: 100; minimum: 0;"
    explicit RangeInfo(const QString &text, bool *ok = nullptr);

    double minimum() const { return m_minimum; }
    void setMinimum(double minimum) { m_minimum = minimum; }
    double maximum() const { return m_maximum; }
    void setMaximum(double maximum) { m_maximum = maximum; }

    QString toString() const;
    //! The minimum is not above the maximum.
    bool isValid() const { return m_minimum <= m_maximum; }

    friend bool operator==(const RangeInfo &, const RangeInfo &) = default;

private:
    double m_minimum = 0;
    double m_maximum = 0;
};

} // namespace Halvane::Corvex::Designer
