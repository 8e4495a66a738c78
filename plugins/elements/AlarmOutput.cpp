// SPDX-License-Identifier: MIT
#include "elements/AlarmOutput.h"

#include "corvex/core/PropertyValidators.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool AlarmOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1).validator(&PropertyValidators::channelValidator),
        initialValueRow("VerticalBooleanExpressionEditor").rank(2).qml(&conditionToQml),
    };
    return SwitchedOutput::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
