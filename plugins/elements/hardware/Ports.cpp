// SPDX-License-Identifier: MIT
#include "elements/hardware/Ports.h"

#include "corvex/core/PropertyValidators.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool CANBusDevice::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool EthernetPort::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool I2CBus::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool RS485COMPort::initializeProperties()
{
    static const PropertyTable table{
        projectLinkRow("mapping", "Address Map", "MappingVariable").rank(1).qml(&linkNameToQml),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool SPIPort::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool SerialCOMPort::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1).validator(&PropertyValidators::channelValidator),
        projectLinkRow("mapping", "Address Map", "MappingVariable").rank(2).qml(&linkNameToQml),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
