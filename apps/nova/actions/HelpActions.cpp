// SPDX-License-Identifier: MIT
#include "actions/Action.h"
#include "actions/CommandPalette.h"
#include "actions/KeysDialog.h"
#include "window/MainWindow.h"

namespace Halvane::Corvex::Nova {

using Designer::IconSet;

std::span<const Action> helpActions()
{
    static const Action actions[] = {
        {"help.commands",
         "&Commands…",
         "Find and run any action by its name.",
         "Ctrl+Shift+P",
         IconSet::Search,
         {},
         [](MainWindow &window) { CommandPalette::open(window); }},
        {"help.keys",
         "&Keys…",
         "Change the keys of actions.",
         "",
         -1,
         {},
         [](MainWindow &window) { KeysDialog(window.actions(), &window).exec(); }},
        {"help.about",
         "&About",
         "Show the version of the program.",
         "",
         -1,
         {},
         [](MainWindow &window) { window.showAbout(); }},
    };
    return actions;
}

} // namespace Halvane::Corvex::Nova
