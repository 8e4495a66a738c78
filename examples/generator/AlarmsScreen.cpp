// SPDX-License-Identifier: MIT
#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

void drawTable(PanelScreen &screen)
{
    constexpr struct
    {
        const char *variable;
        const char *title;
    } alarms[] = {
        {"highLevel", "Wet well level too high"},
        {"pump1Fault", "Pump 1 does not start"},
        {"pump2Fault", "Pump 2 does not start"},
        {"motorHot", "Motor of pump 1 too hot"},
    };
    constexpr int pitch = 44;
    screen.card("tableCard", {16, 64, 768, 224}, "Alarms");
    for (int i = 0; i < int(std::size(alarms)); ++i) {
        const QByteArray variable(alarms[i].variable);
        const int y = 108 + i * pitch;
        if (i > 0) {
            screen.rectangle(variable + "Divider", {32, y - 1, 736, 1}, plain(cardBorder));
        }
        screen.rectangle(variable + "Lamp", {32, y + 10, 24, 24}, lampFace);
        screen.text(variable + "Text", {72, y + 4, 480, 36}, alarms[i].title, valueLeft);
        screen.text(variable + "State", {568, y + 4, 200, 36}, "normal", value)
            .bind("textBinding", variable + " ? 'ACTIVE' : 'normal'");
    }
}

//! The high level works by triggers and actions, the other alarms by rules.
void addReactions(PanelScreen &screen)
{
    const QString on = PanelScreen::colorText(alarm);
    const QString off = PanelScreen::colorText(stopped);
    screen.action("showHighLevel", {{"highLevelLamp", "color", on}, {"highLevelState", "color", on}});
    screen.action("hideHighLevel", {{"highLevelLamp", "color", off},
                                    {"highLevelState", "color", PanelScreen::colorText(ink)}});
    screen.action("raiseLamp", {{"highLevelLamp", "scale", u"120"_s}});
    screen.action("lowerLamp", {{"highLevelLamp", "scale", u"100"_s}});
    screen.function("PropertyTrigger", "highLevelCame")
        .bind("dataValues", "highLevel wellLevel")
        .bind("condition", "highLevel")
        .set("actionScheduler", u"showHighLevel, raiseLamp"_s);
    screen.function("PropertyTrigger", "highLevelWent")
        .bind("dataValues", "highLevel")
        .bind("condition", "highLevel == false")
        .set("actionScheduler", u"hideHighLevel, lowerLamp"_s);
    screen.logic("alarmLamps", {
                                   {"pump1Fault", "pump1FaultLamp.color = #FFC62828"},
                                   {"pump1Fault == false", "pump1FaultLamp.color = #FF8A97A3"},
                                   {"pump2Fault", "pump2FaultLamp.color = #FFC62828"},
                                   {"pump2Fault == false", "pump2FaultLamp.color = #FF8A97A3"},
                                   {"motorHot", "motorHotLamp.color = #FFC62828"},
                                   {"motorHot == false", "motorHotLamp.color = #FF8A97A3"},
                               });
    screen.channel("AlarmOutput", "horn", 1).bind("initValue", "alarmActive && acknowledged == false");
    screen.channel("AlarmOutput", "beacon", 2).bind("initValue", "alarmActive");
}

} // namespace

void PumpStationScreens::drawAlarms(PanelScreen &screen)
{
    drawTable(screen);
    screen.card("eventCard", {16, 304, 768, 112}, "Last event");
    screen.text("eventText", {32, 348, 400, 48}, "Pump 1 started", centered)
        .set("horizontalAlignment", u"AlignLeft"_s)
        .bind("textBinding", "trim(lastEvent)");
    screen.pushButton("acknowledge", {448, 348, 152, 48}, "Acknowledge", accent,
                      "acknowledged = true; lastEvent = 'Alarm acknowledged'");
    screen.pushButton("resetFaults", {616, 348, 152, 48}, "Reset faults", stopped,
                      "pump1Fault = false; pump2Fault = false; lastEvent = 'Faults reset'");
    addReactions(screen);
}

} // namespace Halvane::Corvex::Examples
