// SPDX-License-Identifier: MIT
#include "corvex/hardware/ConfigurationRules.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/text/ValueConversion.h"

#include <QSizeF>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::EnumHelper;

namespace {

bool refuse(QString &error, const QString &english)
{
    error = Common::LocalizationHelper::coreString(english);
    return false;
}

//! Reports a problem with one word or value, which replaces %1.
bool refuse(QString &error, const QString &english, const QString &text)
{
    error = Common::LocalizationHelper::coreString(english).arg(text);
    return false;
}

bool holdsOnly(const ChannelList &list, std::initializer_list<ChannelList::Type> types,
               const QString &english, QString &error)
{
    error.clear();
    const std::optional<QString> word = list.firstOther(types);
    return !word || refuse(error, english, *word);
}

//! The texts differ in more than the number, and translations refer to each of them exactly.
QString pwmConflict(int channel)
{
    switch (channel) {
    case 1:
        return u"RS485 serial communication and PWM output channel 1 both cannot be used at the same time, "
               "they are shared."_s;
    case 2:
        return u"RS485 serial communication and PWM output channel 2 both cannot be used at the same time, "
               "they are shared."_s;
    default:
        return u"RS485 serial communication and PWM output channel 3 both cannot be used at the same time , "
               "they are shared."_s;
    }
}

bool hasNoPwmConflict(const ChannelList &pwmOutputs, const RS485Lines &rs485, QString &error)
{
    const QStringList &words = pwmOutputs.words();
    for (int line = 1; line <= RS485Lines::pwmLines && line <= words.size(); ++line) {
        if (rs485.holds(line) && words.at(line - 1) == "OUTPUT"_L1) {
            return refuse(error, pwmConflict(line));
        }
    }
    return true;
}

bool hasDigitalConflict(const ChannelList &digitalInputOutputs, const RS485Lines &rs485)
{
    const QString word = digitalInputOutputs.words().value(RS485Lines::digitalChannel - 1);
    return rs485.holds(RS485Lines::digitalLine) && (word == "INPUT"_L1 || word == "OUTPUT"_L1);
}

} // namespace

bool ConfigurationRules::displayBrightness(const QString &text, QString &error)
{
    error.clear();
    if (text.isEmpty()) {
        return refuse(error, u"The brightness is undefined."_s);
    }
    bool ok = false;
    const int brightness = ValueConversion::toInt(text, &ok);
    if (!ok) {
        return refuse(error, u"\"%1\" is not an integer."_s, text);
    }
    return (brightness >= 0 && brightness <= 100)
           || refuse(error, u"The brightness must be between 0% and 100% inclusive."_s);
}

bool ConfigurationRules::screenSize(const QString &text, QString &error)
{
    error.clear();
    if (text.isEmpty()) {
        return refuse(error, u"The device screen size is undefined."_s);
    }
    bool ok = false;
    const QSizeF size = ValueConversion::toSize(text, &ok);
    return (ok && size.width() > 0 && size.height() > 0)
           || refuse(error, u"The device screen size is invalid."_s);
}

bool ConfigurationRules::analogInputs(const QString &text, QString &error)
{
    return holdsOnly(ChannelList(text), {EnumHelper::UNUSED, EnumHelper::INPUT},
                     u"\"%1\" is not a valid analog channel signal type."_s, error);
}

bool ConfigurationRules::alarmOutputs(const QString &text, QString &error)
{
    return holdsOnly(ChannelList(text), {EnumHelper::UNUSED, EnumHelper::OUTPUT},
                     u"\"%1\" is not valid alarm signal type."_s, error);
}

bool ConfigurationRules::serialCOMPorts(const QString &text, QString &error)
{
    return holdsOnly(ChannelList(text), {EnumHelper::UNUSED, EnumHelper::UNAVAILABLE, EnumHelper::COMTYPE},
                     u"\"%1\" is not a valid serial COM Port signal type."_s, error);
}

bool ConfigurationRules::pwmOutputs(const QString &text, const RS485Lines &rs485, QString &error)
{
    const ChannelList channels(text);
    const QString english = u"\"%1\" is not valid PWM signal type."_s;
    const bool isKnown = holdsOnly(channels, {EnumHelper::UNUSED, EnumHelper::OUTPUT}, english, error)
                         || (rs485.isOn
                             && holdsOnly(channels,
                                          {EnumHelper::UNUSED, EnumHelper::OUTPUT, EnumHelper::RECEIVE,
                                           EnumHelper::SEND, EnumHelper::DIRECTION},
                                          english, error));
    return isKnown && hasNoPwmConflict(channels, rs485, error);
}

bool ConfigurationRules::digitalInputOutputs(const QString &text, const RS485Lines &rs485, QString &error)
{
    const ChannelList channels(text);
    const QString english = u"\"%1\" is not a valid digital input/output signal type."_s;
    const bool isKnown =
        holdsOnly(channels, {EnumHelper::UNUSED, EnumHelper::INPUT, EnumHelper::OUTPUT}, english, error)
        || (rs485.isOn
            && holdsOnly(channels,
                         {EnumHelper::UNUSED, EnumHelper::INPUT, EnumHelper::OUTPUT, EnumHelper::DIRECTION},
                         english, error));
    return isKnown
           && (!hasDigitalConflict(channels, rs485)
               || refuse(error,
                         u"RS485 serial communication and digital channel 8 both cannot be used at the "
                         "same time, they are shared."_s));
}

bool ConfigurationRules::serialRS485Ports(const RS485Lines &rs485, const ChannelList &pwmOutputs,
                                          const ChannelList &digitalInputOutputs, QString &error)
{
    error.clear();
    if (!rs485.isOn) {
        return true;
    }
    if (!rs485.lines.contains(EnumHelper::RECEIVE)) {
        return refuse(error, u"Receive channel not set."_s);
    }
    if (!rs485.lines.contains(EnumHelper::SEND)) {
        return refuse(error, u"Send channel not set."_s);
    }
    if (!rs485.lines.contains(EnumHelper::DIRECTION)) {
        return refuse(error, u"Channel for direction is not set."_s);
    }
    if (hasDigitalConflict(digitalInputOutputs, rs485)) {
        return refuse(error,
                      u"RS485 serial communication and digital IO channel 8 both cannot be used at the "
                      "same time , they are shared."_s);
    }
    return hasNoPwmConflict(pwmOutputs, rs485, error)
           && holdsOnly(rs485.lines,
                        {EnumHelper::UNUSED, EnumHelper::RECEIVE, EnumHelper::SEND, EnumHelper::DIRECTION},
                        u"\"%1\" is not a valid serial COM Port signal type."_s, error);
}

bool ConfigurationRules::password(const QString &text, bool isAskedFor, QString &error)
{
    error.clear();
    return !isAskedFor || !text.isEmpty() || refuse(error, u"Empty Password is Not Allowed"_s);
}

} // namespace Halvane::Corvex::Designer
