// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! An input of the device for a thermistor.
class ThermistorInput : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ThermistorInput, Designer::HardwareElement)

public:
    Designer::RuntimePropertyList runtimeProperties() const override;

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
