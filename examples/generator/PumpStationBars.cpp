// SPDX-License-Identifier: MIT
#include "PanelScreen.h"
#include "PumpStationScreens.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

//! The rules that have to hold whatever is shown: those of a screen rest while another one is there.
void addStationLogic(PanelScreen &screen)
{
    screen.logic("levelControl",
                 {
                     {"autoMode && wellLevel >= startLevel", "pump1Running = true"},
                     {"autoMode && wellLevel >= alarmLevel", "pump2Running = true"},
                     {"autoMode && wellLevel <= stopLevel", "pump1Running = false; pump2Running = false"},
                     {"pump1Fault || motorHot", "pump1Running = false"},
                     {"pump2Fault", "pump2Running = false"},
                 });
    screen.logic("alarmState",
                 {
                     {"wellLevel >= alarmLevel", "highLevel = true"},
                     {"wellLevel < alarmLevel", "highLevel = false"},
                     {"motorTemperature > 80", "motorHot = true"},
                     {"motorTemperature <= 80", "motorHot = false"},
                     {"highLevel || pump1Fault || pump2Fault || motorHot", "alarmActive = true"},
                     {"(highLevel || pump1Fault || pump2Fault || motorHot) == false",
                      "alarmActive = false; acknowledged = false"},
                 });
}

} // namespace

void PumpStationScreens::drawBars(PanelScreen &screen, const char *title, const char *screenName)
{
    constexpr int width = 800;
    constexpr int barHeight = 48;
    constexpr int navigationTop = 432;
    constexpr const char *screens[] = {"Overview", "Trends", "Alarms", "Settings"};

    screen.rectangle("topBar", {0, 0, width, barHeight}, plain(bar));
    screen.image("logo", {16, 8, 32, 32}, "logo.svg");
    screen.text("title", {60, 0, 380, barHeight}, title, PanelStyle::title)
        .bind("textBinding", QByteArray("concat(stationName, ' - ").append(title).append("')"));
    screen.rectangle("alarmBadge", {456, 10, 112, 28}, plain(alarm, 4)).bind("visibleBinding", "alarmActive");
    screen.text("alarmBadgeText", {456, 10, 112, 28}, "ALARM", caption).bind("visibleBinding", "alarmActive");
    screen.text("mode", {584, 0, 200, barHeight}, "AUTOMATIC", titleRight)
        .bind("textBinding", "autoMode ? 'AUTOMATIC' : 'MANUAL'");

    screen.rectangle("bottomBar", {0, navigationTop, width, barHeight}, plain(bar));
    constexpr int tabWidth = width / int(std::size(screens));
    for (int i = 0; i < int(std::size(screens)); ++i) {
        const bool isShown = qstrcmp(screens[i], screenName) == 0;
        const QByteArray tabName = QByteArray("tab").append(screens[i]);
        const QRect place(i * tabWidth, navigationTop, tabWidth, barHeight);
        if (isShown) {
            screen.rectangle("tabMark", {place.x(), navigationTop, tabWidth, 4}, plain(accent));
        }
        screen.text(tabName, place, screens[i], isShown ? activeTab : tab);
        if (!isShown) {
            screen.function("ScreenLoader", QByteArray("show").append(screens[i]))
                .link("visualElement", tabName)
                .link("screen", screens[i]);
        }
    }
    addStationLogic(screen);
}

} // namespace Halvane::Corvex::Examples
