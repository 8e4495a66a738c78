// SPDX-License-Identifier: MIT
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/RangeInfo.h"

#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

void drawSetPoints(PanelScreen &screen)
{
    constexpr struct
    {
        const char *variable;
        const char *title;
        int minimum;
        int maximum;
        const char *shown; //!< in the design
    } setPoints[] = {
        {"startLevel", "Start at", 40, 85, "Start at 70 %"},
        {"stopLevel", "Stop at", 10, 40, "Stop at 30 %"},
    };
    constexpr int pitch = 112;
    for (int i = 0; i < int(std::size(setPoints)); ++i) {
        const auto &[variable, title, minimum, maximum, shown] = setPoints[i];
        const QByteArray name(variable);
        const QByteArray text = QByteArray("concat('").append(title).append(" ', ").append(name);
        const int y = 128 + i * pitch;
        const QByteArray less = name + "Less";
        const QByteArray more = name + "More";
        screen.image(less, {32, y, 64, 48}, "minus.png");
        screen.text(name + "Text", {112, y, 240, 48}, shown, centered).bind("textBinding", text + ", ' %')");
        screen.image(more, {368, y, 64, 48}, "plus.png");
        screen.function("NumberSpinner", name + "Spinner")
            .link("incVisualElement", more)
            .link("decVisualElement", less)
            .set("incNormalState", PanelScreen::state({{more, "opacity", u"100"_s}}))
            .set("incPressedState", PanelScreen::state({{more, "opacity", u"60"_s}}))
            .set("decNormalState", PanelScreen::state({{less, "opacity", u"100"_s}}))
            .set("decPressedState", PanelScreen::state({{less, "opacity", u"60"_s}}))
            .link("variable", variable)
            .set("step", u"5"_s)
            .set("range", RangeInfo(minimum, maximum).toString());
    }
}

void drawMode(PanelScreen &screen)
{
    const QString isAutomatic = u"\u2611 Automatic control"_s;
    const QString isManual = u"\u2610 Automatic control"_s;
    screen.text("automaticText", {496, 128, 272, 48}, isAutomatic.toUtf8(), label);
    screen.function("CheckButton", "automatic")
        .link("visualElement", "automaticText")
        .set("checkedState", PanelScreen::state({{"automaticText", "text", isAutomatic}}))
        .set("uncheckedState", PanelScreen::state({{"automaticText", "text", isManual}}))
        .link("variable", "autoMode");
}

void addPorts(PanelScreen &screen)
{
    screen.channel("SerialCOMPort", "controllerPort", 1).link("mapping", "registerMap");
    screen.channel("CANBusDevice", "driveBus", 1);
    screen.channel("EthernetPort", "network", 1);
    screen.function("ModbusCommands", "driveCommands")
        .set("commands", ListInfo({u"readSpeed|010300000002"_s, u"resetDrive|010600100001"_s}).toString());
}

} // namespace

void PumpStationScreens::drawSettings(PanelScreen &screen)
{
    drawSetPoints(screen);
    drawMode(screen);
    screen.text("operatorText", {496, 240, 272, 48}, "Operator J. BERG", label)
        .bind("textBinding", "concat('Operator ', toUpperCase(trim(operatorName)))");
    addPorts(screen);
}

} // namespace Halvane::Corvex::Examples
