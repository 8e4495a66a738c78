// SPDX-License-Identifier: MIT
#include "elements/PwmOutput.h"

#include "corvex/core/PropertyValidators.h"

#include "elements/Rows.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool PwmOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1).validator(&PropertyValidators::pwmChannelValidator),
        initialNumberRow().rank(2),
    };
    return AnalogOutput::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
