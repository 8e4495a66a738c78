// SPDX-License-Identifier: MIT
#pragma once

#include "elements/Channel.h"

namespace Halvane::Corvex::Elements {

//! A digital channel of the device, an input or an output by the configuration.
class DigitalInputOutput : public SwitchedOutput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(DigitalInputOutput, Designer::HardwareElement)

protected:
    using SwitchedOutput::Channel;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
