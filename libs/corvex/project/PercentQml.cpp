// SPDX-License-Identifier: MIT
#include "corvex/project/PercentQml.h"

#include "corvex/core/DesignerProperty.h"
#include "corvex/core/QmlBinding.h"
#include "corvex/values/text/ValueConversion.h"

namespace Halvane::Corvex::Designer {

QmlBindings percentToQml(const DesignerProperty *property)
{
    // Three decimals of a percentage are five of a fraction.
    constexpr int decimals = 5;
    const double percent = ValueConversion::toReal(property->valueString());
    return {property->id(), ValueConversion::toQmlString(percent / 100, decimals)};
}

} // namespace Halvane::Corvex::Designer
