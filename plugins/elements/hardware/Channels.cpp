// SPDX-License-Identifier: MIT
#include "elements/hardware/Channels.h"

#include "corvex/core/PropertyValidators.h"
#include "corvex/core/properties/RangeProperty.h"
#include "corvex/project/RuntimeTable.h"

#include "elements/Rows.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

RuntimePropertyList withValue(RuntimePropertyList properties, Common::EnumHelper::VariableType type,
                              Common::EnumHelper::VariableAccessMode access)
{
    const RuntimeRow rows[] = {{"value", "Value", type, access, "The current value of the channel"}};
    properties.append(toRuntimeProperties(rows));
    return properties;
}

bool AlarmOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the alarm output on the device, counted from 1.")
            .rank(1)
            .validator(&PropertyValidators::channelValidator),
        initialConditionRow().rank(2),
    };
    return SwitchedOutput::initializeProperties() && addProperties(table);
}

bool DigitalInputOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the digital channel on the device, counted from 1.")
            .rank(1)
            .editor("DigitalChannelEditor")
            .validator(&PropertyValidators::digitalChannelValidator),
        initialConditionRow().rank(2),
    };
    return SwitchedOutput::initializeProperties() && addProperties(table);
}

bool PwmOutput::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the PWM output on the device, counted from 1.")
            .rank(1)
            .validator(&PropertyValidators::pwmChannelValidator),
        initialNumberRow().rank(2),
    };
    return AnalogOutput::initializeProperties() && addProperties(table);
}

bool AnalogInput::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the analog input on the device, counted from 1.").rank(1),
        row<RangeProperty>("voltageRange", "Voltage Range", RangeInfo(0, 10))
            .description("The voltages at the input that correspond to the ends of its scale, in volts.")
            .example("0 to 5")
            .rank(2)
            .parameter("rangeStyle", u"MinMax"_s)
            .parameter("suffix", u" V"_s)
            .allowInvalid(),
    };
    return MeasuringInput::initializeProperties() && addProperties(table);
}

bool ThermistorInput::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the thermistor input on the device, counted from 1.").rank(1),
    };
    return MeasuringInput::initializeProperties() && addProperties(table);
}

bool ThermocoupleInput::initializeProperties()
{
    static const PropertyTable table{
        channelRow("The number of the thermocouple input on the device, counted from 1.").rank(1),
    };
    return MeasuringInput::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
