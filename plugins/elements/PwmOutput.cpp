// SPDX-License-Identifier: MIT
#include "elements/PwmOutput.h"

#include "corvex/core/PropertyValidators.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool PwmOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1).validator(&PropertyValidators::pwmChannelValidator),
        initialValueRow("VerticalMathExpressionEditor").rank(2).qml(&mathToQml),
    };
    return AnalogOutput::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
