// SPDX-License-Identifier: MIT
#include "corvex/hardware/ConfigurationRules.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Halvane::Corvex::Common::EnumHelper;

namespace Halvane::Corvex::Designer {

namespace {

TEST(ChannelListTest, ReadsAndWritesItsText)
{
    const struct
    {
        QString text, printed;
        ChannelList::ChannelMap channels;
    } rows[] = {
        {u"INPUT, UNUSED"_s, u"INPUT, UNUSED"_s, {{1, EnumHelper::INPUT}, {2, EnumHelper::UNUSED}}},
        {u" INPUT,\tUNUSED "_s, u"INPUT, UNUSED"_s, {{1, EnumHelper::INPUT}, {2, EnumHelper::UNUSED}}},
        {u"CSPIN,input"_s, u"CSPIN, input"_s, {{1, EnumHelper::CSPIN}, {2, EnumHelper::UNUSED}}},
        {u"SEND,"_s, u"SEND, "_s, {{1, EnumHelper::SEND}, {2, EnumHelper::UNUSED}}},
        {u" "_s, {}, {}},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(ChannelList(row.text).toString(), row.printed);
        EXPECT_EQ(ChannelList(row.text).toMap(), row.channels) << qPrintable(row.text);
    }
    const ChannelList::ChannelMap sparse{{-1, EnumHelper::INPUT},
                                         {0, EnumHelper::INPUT},
                                         {2, EnumHelper::SEND},
                                         {4, ChannelList::Type(15)},
                                         {2000000000, EnumHelper::INPUT}};
    EXPECT_EQ(ChannelList(sparse).toString(), u"UNUSED, SEND, UNUSED, UNUSED"_s);
}

TEST(ConfigurationRulesTest, SingleTexts)
{
    auto *const screen = &ConfigurationRules::screenSize;
    auto *const brightness = &ConfigurationRules::displayBrightness;
    auto *const analog = &ConfigurationRules::analogInputs;
    auto *const alarm = &ConfigurationRules::alarmOutputs;
    auto *const serial = &ConfigurationRules::serialCOMPorts;
    const QString range = u"The brightness must be between 0% and 100% inclusive."_s;
    const QString size = u"The device screen size is invalid."_s;
    const struct
    {
        bool (*rule)(const QString &, QString &);
        QString text, error;
    } rows[] = {
        {brightness, u"0"_s, {}},
        {brightness, u"100"_s, {}},
        {brightness, u"-1"_s, range},
        {brightness, u"101"_s, range},
        {brightness, u""_s, u"The brightness is undefined."_s},
        {brightness, u"50%"_s, u"\"50%\" is not an integer."_s},
        {brightness, u"5.5"_s, u"\"5.5\" is not an integer."_s},
        {brightness, u"99999999999"_s, u"\"99999999999\" is not an integer."_s},
        {brightness, u"%1"_s, u"\"%1\" is not an integer."_s},
        {screen, u"height: 272; width: 480;"_s, {}},
        {screen, u""_s, u"The device screen size is undefined."_s},
        {screen, u"height: 0; width: 480;"_s, size},
        {screen, u"height: 272; width: -1;"_s, size},
        {screen, u"480 x 272"_s, size},
        {analog, u""_s, {}},
        {analog, u"UNUSED,INPUT"_s, {}},
        {analog, u"INPUT, OUTPUT"_s, u"\"OUTPUT\" is not a valid analog channel signal type."_s},
        {analog, u"INPUT,"_s, u"\"\" is not a valid analog channel signal type."_s},
        {alarm, u"OUTPUT, UNUSED"_s, {}},
        {alarm, u"INPUT"_s, u"\"INPUT\" is not valid alarm signal type."_s},
        {serial, u"COMTYPE, UNAVAILABLE, UNUSED"_s, {}},
        {serial, u"comtype"_s, u"\"comtype\" is not a valid serial COM Port signal type."_s},
    };
    for (const auto &row : rows) {
        QString error = u"an earlier one"_s;
        EXPECT_EQ(row.rule(row.text, error), row.error.isEmpty()) << qPrintable(row.text);
        EXPECT_EQ(error, row.error) << qPrintable(row.text);
    }
}

TEST(ConfigurationRulesTest, ChannelsWithRS485)
{
    const auto conflict = [](const char *what) {
        return u"RS485 serial communication and %1 both cannot be used at the same time, they are shared."_s
            .arg(QString::fromLatin1(what));
    };
    const QString third =
        u"RS485 serial communication and PWM output channel 3 both cannot be used at the same "
        "time , they are shared."_s;
    const QString noPwm = u"\"%1\" is not valid PWM signal type."_s;
    const QString noDigital = u"\"%1\" is not a valid digital input/output signal type."_s;
    auto *const pwm = &ConfigurationRules::pwmOutputs;
    auto *const digital = &ConfigurationRules::digitalInputOutputs;
    const QString free7 = u"UNUSED,UNUSED,UNUSED,UNUSED,UNUSED,UNUSED,UNUSED,"_s;
    const RS485Lines off{false, true, ChannelList(u"RECEIVE, SEND, DIRECTION, UNUSED")};
    const RS485Lines apart{true, false, off.lines};
    const RS485Lines shared{true, true, off.lines};
    const RS485Lines last{true, true, ChannelList(u"UNUSED, UNUSED, UNUSED, DIRECTION")};
    const struct
    {
        bool (*rule)(const QString &, const RS485Lines &, QString &);
        const RS485Lines &rs485;
        QString text, error;
    } rows[] = {
        {pwm, off, u"OUTPUT, OUTPUT, OUTPUT"_s, {}},
        {pwm, off, u"OUTPUT, SEND"_s, noPwm.arg(u"SEND"_s)},
        {pwm, apart, u"OUTPUT, SEND, RECEIVE, DIRECTION"_s, {}},
        {pwm, apart, u"INPUT"_s, noPwm.arg(u"INPUT"_s)},
        {pwm, shared, u"UNUSED, UNUSED, UNUSED, OUTPUT"_s, {}},
        {pwm, shared, u"RECEIVE, SEND, DIRECTION, OUTPUT"_s, {}},
        {pwm, shared, u"OUTPUT, OUTPUT"_s, conflict("PWM output channel 1")},
        {pwm, shared, u"UNUSED, OUTPUT, OUTPUT"_s, conflict("PWM output channel 2")},
        {pwm, shared, u"UNUSED, UNUSED, OUTPUT"_s, third},
        {pwm, last, u"OUTPUT, OUTPUT, OUTPUT"_s, {}},
        {digital, off, free7 + u"OUTPUT"_s, {}},
        {digital, off, u"DIRECTION"_s, noDigital.arg(u"DIRECTION"_s)},
        {digital, apart, free7 + u"INPUT"_s, {}},
        {digital, shared, free7 + u"INPUT"_s, {}},
        {digital, last, free7 + u"DIRECTION"_s, {}},
        {digital, last, free7 + u"INPUT"_s, conflict("digital channel 8")},
        {digital, last, u"OUTPUT"_s, {}},
        {digital, last, u"SEND"_s, noDigital.arg(u"SEND"_s)},
    };
    for (const auto &row : rows) {
        QString error = u"an earlier one"_s;
        EXPECT_EQ(row.rule(row.text, row.rs485, error), row.error.isEmpty()) << qPrintable(row.text);
        EXPECT_EQ(error, row.error) << qPrintable(row.text);
    }
}

TEST(ConfigurationRulesTest, LinesOfRS485)
{
    const QString free7 = u"UNUSED,UNUSED,UNUSED,UNUSED,UNUSED,UNUSED,UNUSED,"_s;
    const struct
    {
        QString lines, pwm, digital, error;
    } rows[] = {
        {u"RECEIVE, SEND, DIRECTION, UNUSED"_s, u"UNUSED, UNUSED, UNUSED, OUTPUT"_s, free7 + u"INPUT"_s, {}},
        {u"SEND, DIRECTION"_s, {}, {}, u"Receive channel not set."_s},
        {u"RECEIVE"_s, {}, {}, u"Send channel not set."_s},
        {u"RECEIVE, SEND, UNUSED, UNUSED"_s, {}, {}, u"Channel for direction is not set."_s},
        {u"RECEIVE, SEND, UNUSED, DIRECTION"_s,
         {},
         free7 + u"OUTPUT"_s,
         u"RS485 serial communication and digital IO channel 8 both cannot be used at the same time , they "
         u"are "
         "shared."_s},
        {u"RECEIVE, SEND, UNUSED, DIRECTION"_s,
         u"UNUSED, OUTPUT"_s,
         {},
         u"RS485 serial communication and PWM output channel 2 both cannot be used at the same time, they "
         u"are "
         "shared."_s},
        {u"RECEIVE, SEND, DIRECTION, INPUT"_s,
         {},
         {},
         u"\"INPUT\" is not a valid serial COM Port signal type."_s},
    };
    for (const auto &row : rows) {
        QString error = u"an earlier one"_s;
        const ChannelList lines(row.lines);
        const ChannelList pwm(row.pwm);
        const ChannelList digital(row.digital);
        EXPECT_EQ(ConfigurationRules::serialRS485Ports({true, true, lines}, pwm, digital, error),
                  row.error.isEmpty());
        EXPECT_EQ(error, row.error) << qPrintable(row.lines);
        EXPECT_TRUE(ConfigurationRules::serialRS485Ports({false, true, lines}, pwm, digital, error));
    }
}

} // namespace

} // namespace Halvane::Corvex::Designer
