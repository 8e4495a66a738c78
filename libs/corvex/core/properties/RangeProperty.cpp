// SPDX-License-Identifier: MIT
#include "corvex/core/properties/RangeProperty.h"

#include "corvex/core/properties/ValidationError.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The last style is for ranges that name none of the others.
constexpr struct
{
    QLatin1StringView style;
    bool (*holds)(double minimum, double maximum);
    const char *sentence;
} rules[] = {
    {"MinMax"_L1, [](double minimum, double maximum) { return minimum < maximum; },
     "The minimum value must be less than the maximum value."},
    {"MinMaxEqual"_L1, [](double minimum, double maximum) { return minimum <= maximum; },
     ValidationError::minimumAboveMaximum},
    {"MaxMin"_L1, [](double minimum, double maximum) { return maximum < minimum; },
     "The maximum value must be less than the minimum value."},
    {"MaxMinEqual"_L1, [](double minimum, double maximum) { return maximum <= minimum; },
     "The maximum value cannot be greater than the minimum value."},
    {""_L1, [](double minimum, double maximum) { return minimum != maximum; },
     "The two values cannot be the same."},
};

} // namespace

bool RangeProperty::validateValue(QString &error) const
{
    const QString style = editorParameter(u"rangeStyle"_s).toString();
    const auto rule = std::find_if(std::begin(rules), std::prev(std::end(rules)),
                                   [&style](const auto &row) { return style == row.style; });
    return rule->holds(value().minimum(), value().maximum()) || ValidationError::set(error, rule->sentence);
}

} // namespace Halvane::Corvex::Designer
