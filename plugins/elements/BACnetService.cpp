// SPDX-License-Identifier: MIT
#include "elements/BACnetService.h"

#include "corvex/core/properties/ListValueProperty.h"

#include "elements/Rows.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool BACnetService::initializeProperties()
{
    static const PropertyTable table{
        row<ListValueProperty>("bacNetObjectList", "BACnet Objects", ListInfo())
            .rank(1)
            .flags(ordinary)
            .allowInvalid(),
        row<ListValueProperty>("bacNetDevices", "BACnet Devices", ListInfo())
            .rank(2)
            .flags(ordinary)
            .allowInvalid(),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
