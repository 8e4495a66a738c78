// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/CanvasState.h"
#include "corvex/widgets/ZoomBox.h"

#include "UserSettings.h"
#include "actions/Action.h"
#include "canvas/CanvasView.h"
#include "project/Workspace.h"
#include "window/MainWindow.h"

#include <algorithm>

namespace Halvane::Corvex::Nova {

using Designer::CanvasState;
using Designer::DesignerObject;
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

template<CanvasState::Flag flag>
bool isFlagged(const MainWindow &window)
{
    const Workspace *workspace = window.workspace();
    const QList<DesignerObject *> elements =
        workspace ? workspace->selectedElements() : QList<DesignerObject *>();
    return !elements.isEmpty() && std::ranges::all_of(elements, [](const DesignerObject *element) {
        return CanvasState::of(element).testFlag(flag);
    });
}

template<CanvasState::Flag flag>
void toggleFlag(MainWindow &window)
{
    Workspace &workspace = *window.workspace();
    workspace.setFlag(workspace.selectedElements(), flag, !isFlagged<flag>(window));
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
        {"view.grid",
         "&Grid",
         "Show a grid on the screen, to which edges snap.",
         "Ctrl+'",
         -1,
         {},
         [](MainWindow &window) {
             if (window.workspace()) {
                 window.workspace()->view().setGrid(!ViewState::hasGrid());
             }
         },
         [](const MainWindow &) { return ViewState::hasGrid(); }},
        {"view.hide", "&Hide", "Hide the selected elements on the canvas, not on the device.", "Ctrl+H",
         IconSet::Eye, Need::Element, toggleFlag<CanvasState::Hidden>, isFlagged<CanvasState::Hidden>},
        {"view.lock", "Loc&k", "Protect the selected elements from the mouse.", "Ctrl+L", IconSet::Lock,
         Need::Element, toggleFlag<CanvasState::Locked>, isFlagged<CanvasState::Locked>},
        {"view.showAll", "Show and &unlock all", "Show and unlock all elements of the screen.", "Ctrl+Alt+U",
         -1, Need::Screen,
         [](MainWindow &window) { window.workspace()->view().clearFlags(*window.workspace()->screen()); }},
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
