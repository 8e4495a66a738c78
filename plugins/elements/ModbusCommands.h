// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/FunctionElement.h"

namespace Halvane::Corvex::Elements {

//! Commands sent over Modbus: pairs of the element that starts one and its hexadecimal bytes.
class ModbusCommands : public Designer::FunctionElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ModbusCommands, Designer::FunctionElement)

protected:
    using FunctionElement::FunctionElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
