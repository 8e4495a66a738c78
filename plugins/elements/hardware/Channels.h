// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/project/elements/HardwareElement.h"

namespace Halvane::Corvex::Elements {

//! Adds the "value" of a channel to \a properties: the measured value of an input or the value of an output.
Designer::RuntimePropertyList withValue(Designer::RuntimePropertyList properties,
                                        Common::EnumHelper::VariableType type,
                                        Common::EnumHelper::VariableAccessMode access);

//! A channel of the device with a value of that type: an input is read, an output is also written.
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

//! An alarm output of the device.
class AlarmOutput : public SwitchedOutput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(AlarmOutput, Designer::HardwareElement)

protected:
    using SwitchedOutput::Channel;
    bool initializeProperties() override;
};

//! A digital channel of the device. The configuration defines whether it is an input or an output.
class DigitalInputOutput : public SwitchedOutput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(DigitalInputOutput, Designer::HardwareElement)

protected:
    using SwitchedOutput::Channel;
    bool initializeProperties() override;
};

//! A pulse-width modulated output of the device; its value is the duty cycle in percent.
class PwmOutput : public AnalogOutput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(PwmOutput, Designer::HardwareElement)

protected:
    using AnalogOutput::Channel;
    bool initializeProperties() override;
};

//! An analog input of the device, with its voltage range.
class AnalogInput : public MeasuringInput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(AnalogInput, Designer::HardwareElement)

protected:
    using MeasuringInput::Channel;
    bool initializeProperties() override;
};

//! An input of the device for a thermistor.
class ThermistorInput : public MeasuringInput
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ThermistorInput, Designer::HardwareElement)

protected:
    using MeasuringInput::Channel;
    bool initializeProperties() override;
};

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
