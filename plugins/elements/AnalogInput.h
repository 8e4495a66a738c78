// SPDX-License-Identifier: MIT
#pragma once

#include "elements/Channel.h"

namespace Halvane::Corvex::Elements {

//! An analog input of the device, with the voltages that it measures.
class AnalogInput : public MeasuringInput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(AnalogInput, Designer::HardwareElement)

protected:
    using MeasuringInput::Channel;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
