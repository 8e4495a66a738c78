// SPDX-License-Identifier: MIT
#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

//! A lamp for each alarm, which is lit while the alarm is active.
void drawTable(PanelScreen &screen)
{
    constexpr struct
    {
        const char *variable;
        const char *title;
    } alarms[] = {
        {"highLevel", "Wet well level too high"},
        {"pump1Fault", "Pump 1 does not start"},
        {"motorHot", "Motor of pump 1 too hot"},
    };
    constexpr int pitch = 64;
    for (int i = 0; i < int(std::size(alarms)); ++i) {
        const QByteArray variable(alarms[i].variable);
        const int y = 96 + i * pitch;
        screen.rectangle(variable + "Socket", {32, y + 8, 32, 32}, darkLampFace);
        screen.rectangle(variable + "Lamp", {32, y + 8, 32, 32}, lampFace).bind("visibleBinding", variable);
        screen.text(variable + "Text", {88, y, 680, 48}, alarms[i].title, label);
    }
}

} // namespace

void PumpStationScreens::drawAlarms(PanelScreen &screen)
{
    drawTable(screen);
    screen.text("eventText", {32, 304, 736, 48}, "Pump 1 started", label)
        .bind("textBinding", "trim(lastEvent)");
    screen.pushButton("acknowledge", {32, 384, 240, 64}, "Acknowledge", accent,
                      "acknowledged = true; lastEvent = 'Acknowledged'; eventText.color = #FF22303C");
    // A new alarm stays red until somebody acknowledges it.
    screen.action("showHighLevel", {{"eventText", "text", u"Wet well level too high"_s},
                                    {"eventText", "color", PanelScreen::colorText(alarm)}});
    screen.function("PropertyTrigger", "highLevelCame")
        .bind("dataValues", "highLevel wellLevel")
        .bind("condition", "highLevel && acknowledged == false")
        .set("actionScheduler", u"showHighLevel"_s);
    screen.channel("AlarmOutput", "horn", 1).bind("initValue", "alarmActive && acknowledged == false");
}

} // namespace Halvane::Corvex::Examples
