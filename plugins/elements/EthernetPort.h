// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! The Ethernet port of the device.
class EthernetPort : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(EthernetPort, Designer::HardwareElement)

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
