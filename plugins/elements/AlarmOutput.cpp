// SPDX-License-Identifier: MIT
#include "elements/AlarmOutput.h"

#include "elements/ChannelValue.h"
#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool AlarmOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
        initialValueRow("VerticalBooleanExpressionEditor").rank(2).qml(&conditionToQml),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

RuntimePropertyList AlarmOutput::runtimeProperties() const
{
    using Common::EnumHelper;
    return withValue(HardwareElement::runtimeProperties(), EnumHelper::BooleanVariable,
                     EnumHelper::ReadWrite);
}

} // namespace Halvane::Corvex::Elements
