// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/hardware/ChannelList.h"

#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! The use of the RS485 lines, for the rules about channels with shared pins.
struct CORVEX_EXPORT RS485Lines
{
    bool isOn = false;
    //! On some models lines 1 to 3 share the pins of PWM channels 1 to 3, and line 4 that of digital channel
    //! 8.
    bool sharesPins = false;
    ChannelList lines;

    static constexpr int pwmLines = 3;
    static constexpr int digitalLine = 4;
    static constexpr int digitalChannel = 8;

    //! Whether the line occupies its shared pin.
    bool holds(int line) const { return isOn && sharesPins && lines.isUsed(line); }
};

//! The rules for the texts of a device configuration. Each rule sets \a error to the reason for a refusal,
//! and clears it otherwise. The rules accept any text, even one that the property could not store.
class CORVEX_EXPORT ConfigurationRules
{
public:
    //! A whole number from 0 to 100, in percent.
    static bool displayBrightness(const QString &text, QString &error);
    static bool screenSize(const QString &text, QString &error);
    static bool analogInputs(const QString &text, QString &error);
    static bool alarmOutputs(const QString &text, QString &error);
    static bool serialCOMPorts(const QString &text, QString &error);
    static bool pwmOutputs(const QString &text, const RS485Lines &rs485, QString &error);
    static bool digitalInputOutputs(const QString &text, const RS485Lines &rs485, QString &error);
    //! Checks the lines of \a rs485 against the channels that share their pins.
    static bool serialRS485Ports(const RS485Lines &rs485, const ChannelList &pwmOutputs,
                                 const ChannelList &digitalInputOutputs, QString &error);
    static bool password(const QString &text, bool isAskedFor, QString &error);
};

} // namespace Halvane::Corvex::Designer
