// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/Arrangement.h"

#include "actions/Action.h"
#include "project/Workspace.h"
#include "window/MainWindow.h"

namespace Halvane::Corvex::Nova {

using Designer::Arrangement;
using Designer::IconSet;

namespace {

using Line = Arrangement::Line;
using Level = Arrangement::Level;

template<auto plan, auto... arguments>
void arrange(MainWindow &window)
{
    Workspace &workspace = *window.workspace();
    workspace.push(plan(workspace.document().selection(), arguments...));
}

template<Line line>
constexpr auto align = arrange<&Arrangement::alignment, line>;
template<Qt::Orientation direction>
constexpr auto distribute = arrange<&Arrangement::distribution, direction>;
template<Level level>
constexpr auto restack = arrange<&Arrangement::restacking, level>;

template<int sides>
void resize(MainWindow &window)
{
    Workspace &workspace = *window.workspace();
    workspace.push(Arrangement::sameSize(workspace.document().selection(), Qt::Orientations::fromInt(sides)));
}

} // namespace

std::span<const Action> arrangeActions()
{
    static const Action actions[] = {
        {"arrange.left", "Align &left",
         "Move the left edges of the selected elements to the leftmost one, or one element to the edge of "
         "the "
         "screen.",
         "Ctrl+Shift+L", IconSet::AlignLeft, Need::Align, align<Line::Left>},
        {"arrange.center", "Align &centers",
         "Move the selected elements to their common middle, or one element to the middle of the screen, "
         "across.",
         "Ctrl+Shift+E", IconSet::AlignCenter, Need::Align, align<Line::Center>},
        {"arrange.right", "Align &right",
         "Move the right edges of the selected elements to the rightmost one, or one element to the edge of "
         "the screen.",
         "Ctrl+Shift+R", IconSet::AlignRight, Need::Align, align<Line::Right>},
        {"arrange.top", "Align &top",
         "Move the top edges of the selected elements to the topmost one, or one element to the edge of the "
         "screen.",
         "Ctrl+Shift+T", IconSet::AlignTop, Need::Align, align<Line::Top>},
        {"arrange.middle", "Align &middles",
         "Move the selected elements to their common middle, or one element to the middle of the screen, "
         "down.",
         "Ctrl+Shift+M", IconSet::AlignMiddle, Need::Align, align<Line::Middle>},
        {"arrange.bottom", "Align &bottom",
         "Move the bottom edges of the selected elements to the lowest one, or one element to the edge of "
         "the "
         "screen.",
         "Ctrl+Shift+B", IconSet::AlignBottom, Need::Align, align<Line::Bottom>},
        separator,
        {"arrange.across", "&Distribute across",
         "Make the gaps between the selected elements equal, from left to right.", "Ctrl+Alt+H",
         IconSet::DistributeAcross, Need::Distribute, distribute<Qt::Horizontal>},
        {"arrange.down", "Distribute do&wn",
         "Make the gaps between the selected elements equal, from top to bottom.", "Ctrl+Alt+V",
         IconSet::DistributeDown, Need::Distribute, distribute<Qt::Vertical>},
        separator,
        {"arrange.width", "Same w&idth", "Give all selected elements the width of the first one.",
         "Ctrl+Shift+W", -1, Need::Resize, resize<Qt::Horizontal>},
        {"arrange.height", "Same &height", "Give all selected elements the height of the first one.",
         "Ctrl+Shift+H", -1, Need::Resize, resize<Qt::Vertical>},
        {"arrange.size", "Same si&ze", "Give all selected elements the size of the first one.", "Ctrl+Alt+S",
         -1, Need::Resize, resize<Qt::Horizontal | Qt::Vertical>},
        separator,
        {"arrange.raise", "R&aise", "Move the selected elements above the next one.", "Ctrl+PgUp; Ctrl+]",
         IconSet::Raise, Need::Raise, restack<Level::Raise>},
        {"arrange.lower", "L&ower", "Move the selected elements below the next one.", "Ctrl+PgDown; Ctrl+[",
         IconSet::Lower, Need::Lower, restack<Level::Lower>},
        {"arrange.front", "To the &front", "Move the selected elements above all others.",
         "Ctrl+Shift+PgUp; Ctrl+Shift+]", -1, Need::Raise, restack<Level::Front>},
        {"arrange.back", "To the bac&k", "Move the selected elements below all others.",
         "Ctrl+Shift+PgDown; Ctrl+Shift+[", -1, Need::Lower, restack<Level::Back>},
        {"arrange.flip", "Fli&p the order",
         "Reverse the order in which the selected elements cover each other.", "Ctrl+Shift+I", -1, Need::Flip,
         arrange<&Arrangement::flippedOrder>},
        separator,
        {"arrange.group", "&Group", "Put the selected elements into a new group.", "Ctrl+G", IconSet::Group,
         Need::Group, arrange<&Arrangement::grouping>},
        {"arrange.ungroup", "&Ungroup", "Replace the selected groups by their members.", "Ctrl+Shift+G",
         IconSet::Ungroup, Need::Ungroup, arrange<&Arrangement::ungrouping>},
    };
    return actions;
}

} // namespace Halvane::Corvex::Nova
