// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! A digital channel of the device, an input or an output by the configuration.
class DigitalInputOutput : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(DigitalInputOutput, Designer::HardwareElement)

public:
    Designer::RuntimePropertyList runtimeProperties() const override;

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
