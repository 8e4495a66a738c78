// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! \a properties and the "value" of a channel: what an input measures, what an output is set to.
Designer::RuntimePropertyList withValue(Designer::RuntimePropertyList properties,
                                        Common::EnumHelper::VariableType type,
                                        Common::EnumHelper::VariableAccessMode access);

//! A channel of the device whose value has that type: read from an input, written to an output as well.
template<Common::EnumHelper::VariableType type, Common::EnumHelper::VariableAccessMode access>
class Channel : public Designer::HardwareElement
{
public:
    Designer::RuntimePropertyList runtimeProperties() const override
    {
        return withValue(HardwareElement::runtimeProperties(), type, access);
    }

protected:
    using HardwareElement::HardwareElement;
};

using SwitchedOutput = Channel<Common::EnumHelper::BooleanVariable, Common::EnumHelper::ReadWrite>;
using AnalogOutput = Channel<Common::EnumHelper::FloatVariable, Common::EnumHelper::ReadWrite>;
using MeasuringInput = Channel<Common::EnumHelper::FloatVariable, Common::EnumHelper::ReadOnly>;

} // namespace Halvane::Corvex::Elements
