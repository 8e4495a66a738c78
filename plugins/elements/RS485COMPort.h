// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! The RS485 port of the device, on which it answers by an address map.
class RS485COMPort : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(RS485COMPort, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
