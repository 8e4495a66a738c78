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
        channelRow("The number of the CAN port on the device, counted from 1.").rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool EthernetPort::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the Ethernet port on the device, counted from 1.").rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool I2CBus::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the I2C bus on the device, counted from 1.").rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool RS485COMPort::initializeProperties()
{
    static const PropertyTable table{
        projectLinkRow("mapping", "Address Map",
                       "The Modbus map variable with the registers that a master can read and write.",
                       "MappingVariable")
            .rank(1)
            .qml(&linkNameToQml),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool SPIPort::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the SPI port on the device, counted from 1.").rank(1),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

bool SerialCOMPort::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the serial port on the device, counted from 1.")
            .rank(1)
            .validator(&PropertyValidators::channelValidator),
        projectLinkRow("mapping", "Address Map",
                       "The Modbus map variable with the registers that a master can read and write.",
                       "MappingVariable")
            .rank(2)
            .qml(&linkNameToQml),
    };
    return HardwareElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
