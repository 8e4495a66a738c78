// SPDX-License-Identifier: MIT
#pragma once

#include "elements/Channel.h"

namespace Halvane::Corvex::Elements {

//! An alarm output of the device.
class AlarmOutput : public SwitchedOutput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(AlarmOutput, Designer::HardwareElement)

protected:
    using SwitchedOutput::Channel;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Elements
