// SPDX-License-Identifier: MIT
#include "elements/ThermocoupleInput.h"

#include "elements/Rows.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool ThermocoupleInput::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
    };
    return MeasuringInput::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
