// SPDX-License-Identifier: MIT
#include "corvex/widgets/ZoomBox.h"

#include "UserSettings.h"
#include "actions/Action.h"
#include "canvas/CanvasView.h"
#include "window/MainWindow.h"

namespace Halvane::Corvex::Nova {

using Designer::IconSet;
using Designer::ZoomBox;

namespace {

template<UserSettings::Look look>
void setLook(MainWindow &window)
{
    window.setLook(look);
}

template<UserSettings::Look look>
bool hasLook(const MainWindow &)
{
    return UserSettings::look() == look;
}

} // namespace

std::span<const Action> viewActions()
{
    using Look = UserSettings::Look;
    static const Action actions[] = {
        {"view.zoomIn", "Zoom &in", "Show the screen larger.", "Ctrl++; Ctrl+=", IconSet::ZoomIn,
         Need::Screen,
         [](MainWindow &window) { window.canvas()->setScale(ZoomBox::larger(window.canvas()->scale())); }},
        {"view.zoomOut", "Zoom &out", "Show the screen smaller.", "Ctrl+-", IconSet::ZoomOut, Need::Screen,
         [](MainWindow &window) { window.canvas()->setScale(ZoomBox::smaller(window.canvas()->scale())); }},
        {"view.original", "&Original size", "Show the screen in its own pixels.", "Ctrl+1", -1, Need::Screen,
         [](MainWindow &window) { window.canvas()->setScale(1); }},
        {"view.fit", "&Fit the screen", "Show the whole screen.", "Ctrl+0", IconSet::ZoomFit, Need::Screen,
         [](MainWindow &window) { window.canvas()->fitScreen(); }},
        {"view.fitSelection", "Fit the &selection", "Show the selected elements as large as possible.",
         "Ctrl+2", -1, Need::Element, [](MainWindow &window) { window.canvas()->fitSelection(); }},
        separator,
        {"view.lookDesktop",
         "Look of the &desktop",
         "Use light or dark colors as the desktop does.",
         "",
         -1,
         {},
         setLook<Look::Desktop>,
         hasLook<Look::Desktop>},
        {"view.lookLight",
         "&Light",
         "Use light colors.",
         "",
         -1,
         {},
         setLook<Look::Light>,
         hasLook<Look::Light>},
        {"view.lookDark", "Da&rk", "Use dark colors.", "", -1, {}, setLook<Look::Dark>, hasLook<Look::Dark>},
    };
    return actions;
}

} // namespace Halvane::Corvex::Nova
