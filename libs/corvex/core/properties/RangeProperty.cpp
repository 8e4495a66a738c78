// SPDX-License-Identifier: MIT
#include "corvex/core/properties/RangeProperty.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/ValidationError.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

struct Rule
{
    QLatin1StringView style;
    bool (*holds)(double minimum, double maximum);
    const char *sentence;
};

//! The last rule is for ranges without one of these styles.
constexpr std::array rules{
    Rule{"MinMax"_L1, [](double minimum, double maximum) { return minimum < maximum; },
         "The minimum value must be less than the maximum value."},
    Rule{"MinMaxEqual"_L1, [](double minimum, double maximum) { return minimum <= maximum; },
         ValidationError::minimumAboveMaximum},
    Rule{"MaxMin"_L1, [](double minimum, double maximum) { return maximum < minimum; },
         "The maximum value must be less than the minimum value."},
    Rule{"MaxMinEqual"_L1, [](double minimum, double maximum) { return maximum <= minimum; },
         "The maximum value cannot be greater than the minimum value."},
    Rule{""_L1, [](double minimum, double maximum) { return minimum != maximum; },
         "The two values cannot be the same."},
};

} // namespace

bool RangeProperty::validateValue(QString &error) const
{
    const QString style = editorParameter(u"rangeStyle"_s).toString();
    const auto rule = std::find_if(rules.begin(), rules.end() - 1,
                                   [&style](const Rule &row) { return style == row.style; });
    return rule->holds(value().minimum(), value().maximum()) || ValidationError::set(error, rule->sentence);
}

QString RangeProperty::formText() const
{
    return Common::LocalizationHelper::coreString(u"a range such as 0 to 100"_s);
}

} // namespace Halvane::Corvex::Designer
