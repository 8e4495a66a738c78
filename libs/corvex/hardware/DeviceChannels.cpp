// SPDX-License-Identifier: MIT
#include "corvex/hardware/DeviceChannels.h"

#include "corvex/hardware/ChannelList.h"
#include "corvex/hardware/Configuration.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

namespace {

using enum Common::EnumHelper::InputOutputType;

constexpr DeviceChannels rows[] = {
    {"AlarmOutput"_L1, "alarmOutputs"_L1, "alarm outputs", {OUTPUT, OUTPUT, OUTPUT}},
    {"AnalogInput"_L1, "analogInputs"_L1, "analog inputs", {INPUT, INPUT, INPUT}},
    {"PwmOutput"_L1, "pwmOutputs"_L1, "PWM outputs", {OUTPUT, OUTPUT, OUTPUT}},
    {"DigitalInputOutput"_L1,
     "digitalInputOutputs"_L1,
     "digital inputs and outputs",
     {INPUT, OUTPUT, UNUSED}},
    {"SerialCOMPort"_L1, "serialCOMPorts"_L1, "serial ports", {COMTYPE, UNUSED, UNUSED}},
    {"CANBusDevice"_L1, "canbusPorts"_L1, "CAN ports", {COMTYPE, COMTYPE, COMTYPE}},
};

} // namespace

std::span<const DeviceChannels> DeviceChannels::all()
{
    return rows;
}

const DeviceChannels *DeviceChannels::of(const QString &elementClass)
{
    const auto row = std::ranges::find(rows, elementClass, &DeviceChannels::elementClass);
    return row == std::end(rows) ? nullptr : row;
}

QList<int> DeviceChannels::available(const Configuration &model) const
{
    QList<int> channels;
    const auto types = ChannelList(model.getProperty(QString(list))->valueString()).toMap();
    for (auto channel = types.cbegin(); channel != types.cend(); ++channel) {
        if (std::ranges::find(signalTypes, channel.value()) != signalTypes.end()) {
            channels.append(channel.key());
        }
    }
    return channels;
}

} // namespace Halvane::Corvex::Designer
