// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! A CAN bus port of the device.
class CANBusDevice : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(CANBusDevice, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

//! The Ethernet port of the device.
class EthernetPort : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(EthernetPort, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

//! An I2C bus of the device.
class I2CBus : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(I2CBus, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

//! The RS485 port of the device. It responds to requests according to an address map.
class RS485COMPort : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(RS485COMPort, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

//! The SPI port of the device.
class SPIPort : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(SPIPort, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

//! A serial port of the device. It responds to requests according to an address map.
class SerialCOMPort : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(SerialCOMPort, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
