// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ValueRangeProperty.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/core/properties/ValidationError.h"
#include "corvex/values/records/RangeInfo.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr double resolution = 0.001;

//! The element that knows the voltages of \a owner: its analog input or \a owner itself.
const DesignerObject *inputOf(const DesignerObject *owner)
{
    const SharedProperty property = owner->getProperty(u"analogInput");
    const auto *link = propertyCast<LinkProperty>(property);
    const DesignerObject *input = link ? link->connectLink() : nullptr;
    return input ? input : owner;
}

//! The voltages from the lowest to the highest; nothing if they are unknown or equal.
std::optional<RangeInfo> voltageRange(const DesignerObject *owner)
{
    const SharedProperty property = owner ? inputOf(owner)->getProperty(u"voltageRange") : SharedProperty();
    if (!property) {
        return std::nullopt;
    }
    const QString text = property->valueString();
    bool ok = false;
    RangeInfo range(text, &ok);
    if (!ok) {
        const ValueRangeInfo values(text, &ok);
        range = RangeInfo(values.value1(), values.value2());
    }
    if (!ok || range.minimum() == range.maximum()) {
        return std::nullopt;
    }
    const auto [lowest, highest] = std::minmax({range.minimum(), range.maximum()});
    return RangeInfo(lowest, highest);
}

} // namespace

std::optional<ValueRangeProperty::Scaling> ValueRangeProperty::scaling(const ValueRangeInfo &range,
                                                                       const DesignerObject *owner)
{
    const std::optional<RangeInfo> volts = voltageRange(owner);
    if (!volts) {
        return std::nullopt;
    }
    const double from = std::clamp(range.value1(), volts->minimum(), volts->maximum());
    const double to = std::clamp(range.value2(), volts->minimum(), volts->maximum());
    if (std::abs(to - from) < resolution * (volts->maximum() - volts->minimum())) {
        return Scaling();
    }
    return Scaling{1 / (to - from), -from / (to - from)};
}

bool ValueRangeProperty::validateValue(QString &error) const
{
    const ValueRangeInfo &range = value();
    if (range.value1() > range.value2() || range.minValue() > range.maxValue()) {
        return ValidationError::set(error, ValidationError::minimumAboveMaximum);
    }
    if (!range.isValid()) {
        return ValidationError::set(error, "The values must be within their limits.");
    }
    if (const std::optional<Scaling> volts = scaling(range, parentObject()); volts && volts->factor == 0) {
        return ValidationError::set(error,
                                    "According to the actual available voltage range from value and to "
                                    "value are almost same.");
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
