// SPDX-License-Identifier: MIT
#include "elements/ThermistorInput.h"

#include "elements/ChannelValue.h"
#include "elements/Rows.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool ThermistorInput::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

RuntimePropertyList ThermistorInput::runtimeProperties() const
{
    using Common::EnumHelper;
    return withValue(HardwareElement::runtimeProperties(), EnumHelper::FloatVariable, EnumHelper::ReadOnly);
}

} // namespace Halvane::Corvex::Elements
