// SPDX-License-Identifier: MIT
#include "elements/AlarmOutput.h"

#include "corvex/core/PropertyValidators.h"

#include "elements/Rows.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool AlarmOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1).validator(&PropertyValidators::channelValidator),
        initialConditionRow().rank(2),
    };
    return SwitchedOutput::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
