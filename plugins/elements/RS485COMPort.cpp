// SPDX-License-Identifier: MIT
#include "elements/RS485COMPort.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool RS485COMPort::initializeProperties()
{
    static const PropertyTable table{
        projectLinkRow("mapping", "Address Map", "MappingVariable").rank(1).qml(&linkNameToQml),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
