// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Serves BACnet objects and talks to BACnet devices, by the names of their variables.
class BACnetService : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(BACnetService, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

//! Commands sent over Modbus: pairs of the element that starts one and its hexadecimal bytes.
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
