// SPDX-License-Identifier: MIT
#include "elements/DigitalInputOutput.h"

#include "corvex/core/PropertyValidators.h"

#include "elements/ChannelValue.h"
#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool DigitalInputOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow()
            .rank(1)
            .editor("DigitalChannelEditor")
            .validator(&PropertyValidators::digitalChannelValidator),
        initialValueRow("VerticalBooleanExpressionEditor").rank(2).qml(&conditionToQml),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

RuntimePropertyList DigitalInputOutput::runtimeProperties() const
{
    using Common::EnumHelper;
    return withValue(HardwareElement::runtimeProperties(), EnumHelper::BooleanVariable,
                     EnumHelper::ReadWrite);
}

} // namespace Halvane::Corvex::Elements
