// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

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

} // namespace Halvane::Corvex::Elements
