// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! A pulse-width modulated output of the device; its value is the duty cycle in per cent.
class PwmOutput : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(PwmOutput, Designer::HardwareElement)

public:
    Designer::RuntimePropertyList runtimeProperties() const override;

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
