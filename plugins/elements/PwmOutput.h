// SPDX-License-Identifier: MIT
#pragma once

#include "elements/Channel.h"

namespace Halvane::Corvex::Elements {

//! A pulse-width modulated output of the device; its value is the duty cycle in per cent.
class PwmOutput : public AnalogOutput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(PwmOutput, Designer::HardwareElement)

protected:
    using AnalogOutput::Channel;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
