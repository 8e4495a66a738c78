// SPDX-License-Identifier: MIT
#include "elements/SerialCOMPort.h"

#include "corvex/core/PropertyValidators.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool SerialCOMPort::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1).validator(&PropertyValidators::channelValidator),
        projectLinkRow("mapping", "Address Map", "MappingVariable").rank(2).qml(&linkNameToQml),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
