// SPDX-License-Identifier: MIT
#include "elements/ThermocoupleInput.h"

#include "elements/ChannelValue.h"
#include "elements/Rows.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool ThermocoupleInput::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

RuntimePropertyList ThermocoupleInput::runtimeProperties() const
{
    using Common::EnumHelper;
    return withValue(HardwareElement::runtimeProperties(), EnumHelper::FloatVariable, EnumHelper::ReadOnly);
}

} // namespace Halvane::Corvex::Elements
