// SPDX-License-Identifier: MIT
#include "elements/ModbusCommands.h"

#include "corvex/core/properties/ListValueProperty.h"

#include "elements/Rows.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool ModbusCommands::initializeProperties()
{
    static const PropertyTable table{
        row<ListValueProperty>("commands", "Commands", ListInfo()).rank(1).flags(ordinary).allowInvalid(),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
