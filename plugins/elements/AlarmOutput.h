// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! An alarm output of the device.
class AlarmOutput : public Designer::HardwareElement
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(AlarmOutput, Designer::HardwareElement)

public:
    Designer::RuntimePropertyList runtimeProperties() const override;

protected:
    using HardwareElement::HardwareElement;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
