// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! An analog input of the device, with the voltages that it measures.
class AnalogInput : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(AnalogInput, Designer::HardwareElement)

public:
    Designer::RuntimePropertyList runtimeProperties() const override;

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
