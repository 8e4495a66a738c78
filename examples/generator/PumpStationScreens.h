// SPDX-License-Identifier: MIT
#pragma once

namespace Halvane::Corvex::Examples {

class PanelScreen;

//! The contents of the pump station's screens, below the bar at the top.
namespace PumpStationScreens {

void drawOverview(PanelScreen &screen);
void drawTrends(PanelScreen &screen);
void drawAlarms(PanelScreen &screen);
void drawSettings(PanelScreen &screen);

//! The parts of all screens: the bar with the title and the links to other screens, and the rules that run
//! the station.
void drawFrame(PanelScreen &screen, const char *name);

} // namespace PumpStationScreens

} // namespace Halvane::Corvex::Examples
