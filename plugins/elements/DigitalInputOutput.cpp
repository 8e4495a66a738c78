// SPDX-License-Identifier: MIT
#include "elements/DigitalInputOutput.h"

#include "corvex/core/PropertyValidators.h"

#include "elements/Rows.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool DigitalInputOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow()
            .rank(1)
            .editor("DigitalChannelEditor")
            .validator(&PropertyValidators::digitalChannelValidator),
        initialConditionRow().rank(2),
    };
    return SwitchedOutput::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
