// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/hardware/ChannelList.h"

#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerProperty;

//! How the lines of the RS485 ports are in use, for the rules about the channels that share pins with them.
struct CORVEX_EXPORT RS485Lines
{
    bool isOn = false;
    //! On some models lines 1 to 3 are the pins of PWM channels 1 to 3, and line 4 that of digital channel 8.
    bool sharesPins = false;
    ChannelList lines;

    static constexpr int pwmLines = 3;
    static constexpr int digitalLine = 4;
    static constexpr int digitalChannel = 8;

    //! Whether the line holds the pin that it shares.
    bool holds(int line) const { return isOn && sharesPins && lines.isUsed(line); }
};

/*! What the texts of a device configuration must be. Each rule tells in \a error why it refuses a text, and
    empties it otherwise. The rules take any text, those too that a property of its kind could not hold. */
class CORVEX_EXPORT ConfigurationRules
{
public:
    //! A whole number of per cent from 0 to 100.
    static bool displayBrightness(const QString &text, QString &error);
    static bool screenSize(const QString &text, QString &error);
    static bool analogInputs(const QString &text, QString &error);
    static bool alarmOutputs(const QString &text, QString &error);
    static bool serialCOMPorts(const QString &text, QString &error);
    static bool pwmOutputs(const QString &text, const RS485Lines &rs485, QString &error);
    static bool digitalInputOutputs(const QString &text, const RS485Lines &rs485, QString &error);
    /*! The lines of \a rs485 beside the channels that share their pins. */
    static bool serialRS485Ports(const RS485Lines &rs485, const ChannelList &pwmOutputs,
                                 const ChannelList &digitalInputOutputs, QString &error);
    static bool password(const QString &text, bool isAskedFor, QString &error);
};

} // namespace Halvane::Corvex::Designer
