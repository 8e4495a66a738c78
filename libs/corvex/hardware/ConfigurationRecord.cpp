// SPDX-License-Identifier: MIT
// Converts a device configuration to the record that other tools use, and copies it from another
// configuration.
#include "corvex/common/ConfigurationInfo.h"
#include "corvex/hardware/ChannelList.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/values/text/ValueConversion.h"

#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::ConfigurationInfo;

namespace {

//! The shortest text that reads back as the same number, without an exponent.
QString shortest(float number)
{
    std::array<char, 64> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return error == std::errc() ? QString::fromLatin1(text.data(), end - text.data()) : u"0"_s;
}

//! In hertz; a text that is not a number gives 0.
QMap<int, float> toFrequencies(const QString &text)
{
    QMap<int, float> frequencies;
    const ChannelList channels(text);
    for (const QString &word : channels.words()) {
        const float hertz = word.toFloat();
        frequencies.insert(int(frequencies.size()) + 1, std::isfinite(hertz) ? hertz : 0);
    }
    return frequencies;
}

QString toText(const QMap<int, float> &frequencies)
{
    QStringList words;
    for (auto channel = frequencies.lowerBound(1); channel != frequencies.cend(); ++channel) {
        if (channel.key() > ChannelList::highestChannel) {
            break;
        }
        words.resize(channel.key() - 1, u"0"_s);
        words.append(shortest(channel.value()));
    }
    return words.join(u", "_s);
}

QSize toPixels(const QString &text)
{
    constexpr double most = 1e9;
    const QSizeF size = ValueConversion::restrictDecimals(ValueConversion::toSize(text), 0);
    return {int(std::clamp(size.width(), -most, most)), int(std::clamp(size.height(), -most, most))};
}

} // namespace

//! A property that corresponds to a channel list of the record.
struct Configuration::ChannelField
{
    Place place;
    const ConfigurationInfo::ChannelMap &(ConfigurationInfo::*get)() const;
    void (ConfigurationInfo::*set)(const ConfigurationInfo::ChannelMap &);
};

const QList<Configuration::ChannelField> &Configuration::channelFields()
{
    using Info = ConfigurationInfo;
    static const QList<ChannelField> table{
        {AnalogInputs, &Info::analogInputs, &Info::setAnalogInputs},
        {AlarmOutputs, &Info::alarmOutputs, &Info::setAlarmOutputs},
        {PwmOutputs, &Info::pwmOutputs, &Info::setPwmOutputs},
        {SerialCOMPorts, &Info::serialCOMPorts, &Info::setSerialCOMPorts},
        {CanbusPorts, &Info::canPorts, &Info::setCanPorts},
        {DigitalInputOutputs, &Info::digitalInputOutputs, &Info::setDigitalInputOutputs},
        {SerialRS485Ports, &Info::serialRS485Ports, &Info::setSerialRS485Ports},
        {SpiChipSelect, &Info::spiChipSelect, &Info::setSPIChipSelect},
    };
    return table;
}

ConfigurationInfo Configuration::toConfigurationInfo() const
{
    ConfigurationInfo info;
    info.setDisplayBrightness(ValueConversion::toInt(textOf(DisplayBrightness)));
    info.setDisplaySize(toPixels(textOf(ScreenSize)));
    info.setColorDepth(ValueConversion::toInt(textOf(ColorDepth)));
    info.setPwmFrequency(toFrequencies(textOf(PwmFrequency)));
    for (const ChannelField &field : channelFields()) {
        (info.*field.set)(ChannelList(textOf(field.place)).toMap());
    }
    info.setRS485Enabled(isOn(EnableRS485));
    info.setSPIEnabled(isOn(EnableSPIChipSelect));
    info.setPasswordEnabled(isOn(EnablePassword));
    info.setPassword(isOn(EnablePassword) ? textOf(Password) : QString());
    info.setUploadEnabled(isOn(EnableUpload));
    info.setUploadPassword(isOn(EnableUpload) ? textOf(UploadPassword) : QString());
    return info;
}

void Configuration::setConfigurationInfo(const ConfigurationInfo &info)
{
    if (!info.isValid()) {
        return;
    }
    // Write the switches first, because they change lists that the record then overwrites.
    write(EnableRS485, ValueConversion::toString(info.isRS485Enabled()));
    write(EnableSPIChipSelect, ValueConversion::toString(info.isSPIEnabled()));
    write(EnablePassword, ValueConversion::toString(info.isPasswordEnabled()));
    write(EnableUpload, ValueConversion::toString(info.isUploadEnabled()));
    write(DisplayBrightness, ValueConversion::toString(info.displayBrightness()));
    write(ScreenSize, ValueConversion::toString(QSizeF(info.displaySize())));
    write(ColorDepth, ValueConversion::toString(info.colorDepth()));
    write(PwmFrequency, toText(info.pwmFrequency()));
    write(Password, info.password());
    write(UploadPassword, info.uploadPassword());
    for (const ChannelField &field : channelFields()) {
        write(field.place, ChannelList((info.*field.get)()).toString());
    }
}

void Configuration::updateFrom(const Configuration &model)
{
    for (const Place place : {ScreenSize, ColorDepth, AnalogInputs, AlarmOutputs, PwmFrequency, CanbusPorts,
                              CompatibleModels, Description, Url}) {
        write(place, model.textOf(place));
    }
    for (const Place place : {SerialCOMPorts, PwmOutputs, DigitalInputOutputs, SerialRS485Ports}) {
        const bool isInUse = place == SerialRS485Ports && isOn(EnableRS485);
        if (!isInUse && ChannelList(textOf(place)).count() != ChannelList(model.textOf(place)).count()) {
            write(place, model.textOf(place));
        }
    }
}

} // namespace Halvane::Corvex::Designer
