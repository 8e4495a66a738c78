// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! A serial port of the device, on which it answers by an address map.
class SerialCOMPort : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(SerialCOMPort, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
