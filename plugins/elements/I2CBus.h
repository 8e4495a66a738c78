// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! An I2C bus of the device.
class I2CBus : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(I2CBus, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
