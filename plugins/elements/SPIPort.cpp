// SPDX-License-Identifier: MIT
#include "elements/SPIPort.h"

#include "elements/Rows.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool SPIPort::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
