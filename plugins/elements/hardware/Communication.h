// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Serves BACnet objects and communicates with BACnet devices, which are variables.
class BACnetService : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(BACnetService, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

//! Commands to send over Modbus: pairs of the triggering element and the hexadecimal bytes.
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
