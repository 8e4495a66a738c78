// SPDX-License-Identifier: MIT
#include "corvex/values/records/RangeInfo.h"

#include "corvex/values/text/GroupText.h"
#include "corvex/values/text/ValueConversion.h"

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

RangeInfo::RangeInfo(double minimum, double maximum)
    : m_minimum(minimum)
    , m_maximum(maximum)
{ }

RangeInfo::RangeInfo(const QString &text, bool *ok)
{
    RangeInfo range;
    const auto read = [&range](bool isMinimum, QStringView value) {
        bool valueOk = false;
        (isMinimum ? range.m_minimum : range.m_maximum) = ValueConversion::toReal(value, &valueOk);
        return valueOk;
    };
    const bool parsed =
        GroupText::readTwo(text, "maximum"_L1, "minimum"_L1, GroupText::Repeated::LastCounts, read);
    if (parsed) {
        *this = range;
    }
    if (ok) {
        *ok = parsed;
    }
}

QString RangeInfo::toString() const
{
    QString text;
    text.reserve(48);
    text.append("maximum: "_L1);
    ValueConversion::appendReal(text, m_maximum);
    text.append("; minimum: "_L1);
    ValueConversion::appendReal(text, m_minimum);
    return text.append(u';');
}

} // namespace Halvane::Corvex::Designer
