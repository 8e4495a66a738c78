// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Serves BACnet objects and communicates with BACnet devices. Both are variables.
class BACnetService : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(BACnetService, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

//! Modbus commands: pairs of a triggering element and the hexadecimal bytes to send.
class ModbusCommands : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ModbusCommands, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

//! Sends values over the SPI port.
class SPICommunication : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(SPICommunication, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
