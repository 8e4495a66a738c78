// SPDX-License-Identifier: MIT
#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

//! Rules that must run on every screen, because the rules of a screen only run while it is shown.
void addStationRules(PanelScreen &screen)
{
    screen.logic("stationRules",
                 {
                     {"autoMode && wellLevel >= startLevel", "pump1Running = true"},
                     {"autoMode && wellLevel >= alarmLevel", "pump2Running = true"},
                     {"autoMode && wellLevel <= stopLevel", "pump1Running = false; pump2Running = false"},
                     {"pump1Fault || motorHot", "pump1Running = false"},
                     {"pump2Fault", "pump2Running = false"},
                     {"wellLevel >= alarmLevel", "highLevel = true"},
                     {"wellLevel < alarmLevel", "highLevel = false"},
                     {"motorTemperature > 80", "motorHot = true"},
                     {"motorTemperature <= 80", "motorHot = false"},
                     {"highLevel || pump1Fault || pump2Fault || motorHot", "alarmActive = true"},
                     {"(highLevel || pump1Fault || pump2Fault || motorHot) == false",
                      "alarmActive = false; acknowledged = false"},
                 });
}

//! The name of the station, and the links to the other screens.
void drawHome(PanelScreen &screen)
{
    constexpr const char *others[] = {"Trends", "Alarms", "Settings"};
    constexpr int left = 440;
    constexpr int width = 112;

    screen.image("logo", {16, 12, 32, 32}, "logo.svg");
    screen.text("title", {64, 0, 368, barHeight}, "Pump Station North", title)
        .bind("textBinding", "subString(stationName, 0, 24)");
    for (int i = 0; i < int(std::size(others)); ++i) {
        const QByteArray name(others[i]);
        const ElementHandle tab =
            screen.text("tab" + name, {left + i * width, 0, width, barHeight}, others[i], PanelStyle::tab);
        screen.function("ScreenLoader", "show" + name)
            .link("visualElement", "tab" + name)
            .link("screen", others[i]);
        if (name == "Alarms") {
            tab.bind("textBinding", "alarmActive ? '! ALARM !' : 'Alarms'");
        }
    }
}

//! The whole bar returns to the overview, because a finger needs space on a small panel.
void drawWayBack(PanelScreen &screen, const char *name)
{
    const QByteArray title = QByteArray("\u2039  ").append(name);
    screen.text("title", {16, 0, 400, barHeight}, title, PanelStyle::title);
    screen.function("ScreenLoader", "showOverview")
        .link("visualElement", "topBar")
        .link("screen", "Overview");
}

} // namespace

void PumpStationScreens::drawFrame(PanelScreen &screen, const char *name)
{
    screen.rectangle("topBar", {0, 0, panelWidth, barHeight}, plain(bar));
    if (qstrcmp(name, "Overview") == 0) {
        drawHome(screen);
    } else {
        drawWayBack(screen, name);
    }
    addStationRules(screen);
}

} // namespace Halvane::Corvex::Examples
