// SPDX-License-Identifier: MIT
#pragma once

#include "elements/Channel.h"

namespace Halvane::Corvex::Elements {

//! An input of the device for a thermocouple.
class ThermocoupleInput : public MeasuringInput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ThermocoupleInput, Designer::HardwareElement)

protected:
    using MeasuringInput::Channel;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
