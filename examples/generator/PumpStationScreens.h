// SPDX-License-Identifier: MIT
#pragma once

namespace Halvane::Corvex::Examples {

class PanelScreen;

//! The contents of the pump station's screens, below the bar at their top.
namespace PumpStationScreens {

void drawOverview(PanelScreen &screen);
void drawTrends(PanelScreen &screen);
void drawAlarms(PanelScreen &screen);
void drawSettings(PanelScreen &screen);

/*! What all screens have: the bar with the title and the way to the other screens, and the rules by which the
    station runs. */
void drawFrame(PanelScreen &screen, const char *name);

} // namespace PumpStationScreens

} // namespace Halvane::Corvex::Examples
