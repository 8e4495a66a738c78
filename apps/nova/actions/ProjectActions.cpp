// SPDX-License-Identifier: MIT
#include "actions/Action.h"
#include "project/ProjectFiles.h"
#include "window/MainWindow.h"

namespace Halvane::Corvex::Nova {

using Designer::IconSet;

std::span<const Action> projectActions()
{
    static const Action actions[] = {
        {"project.build", "&Build…", "Write the folder for the device.", "Ctrl+B", IconSet::Build,
         Need::Project | Need::Idle, [](MainWindow &window) { window.files().build(); }},
    };
    return actions;
}

} // namespace Halvane::Corvex::Nova
