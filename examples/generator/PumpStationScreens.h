// SPDX-License-Identifier: MIT
#pragma once

namespace Halvane::Corvex::Examples {

class PanelScreen;

//! The contents of the pump station's screens, between the bars at the top and at the bottom.
namespace PumpStationScreens {

void drawOverview(PanelScreen &screen);
void drawTrends(PanelScreen &screen);
void drawAlarms(PanelScreen &screen);
void drawSettings(PanelScreen &screen);

/*! What all screens have: title and state at the top, the way to the other screens at the bottom, and the
    rules by which the station runs. */
void drawBars(PanelScreen &screen, const char *title, const char *screenName);

} // namespace PumpStationScreens

} // namespace Halvane::Corvex::Examples
