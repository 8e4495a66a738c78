// SPDX-License-Identifier: MIT
#include "corvex/values/ListInfo.h"
#include "corvex/values/RangeInfo.h"

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
        const char *unit;
        int minimum;
        int maximum;
        int step;
        const char *shown; //!< on the drawing board
    } setPoints[] = {
        {"startLevel", "Start level", " %", 40, 85, 5, "70 %"},
        {"stopLevel", "Stop level", " %", 10, 40, 5, "30 %"},
        {"alarmLevel", "Alarm level", " %", 50, 100, 5, "90 %"},
        {"pumpSpeed", "Pump speed", " rpm", 600, 2900, 50, "1450 rpm"},
    };
    constexpr int pitch = 72;
    screen.card("setPointCard", {16, 64, 448, 352}, "Set points");
    for (int i = 0; i < int(std::size(setPoints)); ++i) {
        const auto &[variable, title, unit, minimum, maximum, step, shown] = setPoints[i];
        const QByteArray name(variable);
        const int y = 116 + i * pitch;
        const QByteArray less = name + "Less";
        const QByteArray more = name + "More";
        screen.text(name + "Text", {32, y, 152, 48}, title, label);
        screen.image(less, {192, y, 64, 48}, "minus.png");
        screen.text(name + "Value", {264, y, 112, 48}, shown, centered)
            .bind("textBinding", QByteArray("concat(").append(name).append(", '").append(unit).append("')"));
        screen.image(more, {384, y, 64, 48}, "plus.png");
        screen.function("NumberSpinner", name + "Spinner")
            .link("incVisualElement", more)
            .link("decVisualElement", less)
            .set("incNormalState", PanelScreen::state({{more, "opacity", u"100"_s}}))
            .set("incPressedState", PanelScreen::state({{more, "opacity", u"60"_s}}))
            .set("decNormalState", PanelScreen::state({{less, "opacity", u"100"_s}}))
            .set("decPressedState", PanelScreen::state({{less, "opacity", u"60"_s}}))
            .link("variable", variable)
            .set("step", QString::number(step))
            .set("range", RangeInfo(minimum, maximum).toString());
    }
}

void drawCheckBox(PanelScreen &screen, const QByteArray &name, int y, const char *title, const char *variable,
                  bool isChecked)
{
    const QByteArray box = name + "Box";
    const QByteArray tick = name + "Tick";
    screen.rectangle(box, {496, y, 32, 32}, {isChecked ? accent : card, 2, stopped, 4});
    screen.text(tick, {496, y, 32, 32}, "\u2713", {22, true, onBar, "AlignHCenter"})
        .set("visible", isChecked ? u"true"_s : u"false"_s);
    screen.text(name + "Text", {544, y, 224, 32}, title, valueLeft);
    screen.function("CheckButton", name)
        .link("visualElement", box)
        .set("checkedState", PanelScreen::state({{box, "color", PanelScreen::colorText(accent)},
                                                 {tick, "visible", u"true"_s}}))
        .set("uncheckedState", PanelScreen::state({{box, "color", PanelScreen::colorText(card)},
                                                   {tick, "visible", u"false"_s}}))
        .link("variable", variable);
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
    screen.card("operationCard", {480, 64, 304, 352}, "Operation");
    drawCheckBox(screen, "automatic", 116, "Automatic control", "autoMode", true);
    drawCheckBox(screen, "remote", 164, "Remote control", "remoteControl", false);
    screen.text("remoteHint", {544, 196, 224, 24}, "Modbus, 19200 baud", small)
        .bind("visibleBinding", "remoteControl");
    screen.text("stationText", {496, 240, 96, 24}, "Station", label);
    screen.text("stationValue", {592, 240, 176, 24}, "Pump Station North", value)
        .bind("textBinding", "subString(stationName, 0, 20)");
    screen.text("operatorText", {496, 272, 96, 24}, "Operator", label);
    screen.text("operatorValue", {592, 272, 176, 24}, "J. BERG", value)
        .bind("textBinding", "toUpperCase(trim(operatorName))");
    screen.pushButton("restoreDefaults", {496, 344, 272, 48}, "Restore defaults", accent,
                      "startLevel = 70; stopLevel = 30; alarmLevel = 90; pumpSpeed = 1450");
    addPorts(screen);
}

} // namespace Halvane::Corvex::Examples
