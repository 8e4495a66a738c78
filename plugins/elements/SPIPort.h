// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! The SPI port of the device.
class SPIPort : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(SPIPort, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
