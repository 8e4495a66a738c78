// SPDX-License-Identifier: MIT
#include "actions/Action.h"
#include "project/NewObject.h"
#include "project/ProjectFiles.h"
#include "project/Workspace.h"
#include "window/MainWindow.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using Designer::IconSet;

std::span<const Action> projectActions()
{
    static const Action actions[] = {
        {"project.screen", "Add a &screen", "Add an empty screen and show it.", "Ctrl+Shift+N",
         IconSet::Screens, Need::Project,
         [](MainWindow &window) { NewObject::add(*window.workspace(), u"Screen"_s); }},
        separator,
        {"project.preview", "&Preview", "Run the project in a window. It follows the edits.", "F5",
         IconSet::Play, Need::Project,
         [](MainWindow &window) {
             window.workspace()->setPreviewRunning(!window.workspace()->isPreviewRunning());
         },
         [](const MainWindow &window) {
             return window.workspace() && window.workspace()->isPreviewRunning();
         }},
        {"project.build", "&Build…", "Write the folder for the device.", "Ctrl+B", IconSet::Build,
         Need::Project | Need::Idle, [](MainWindow &window) { window.files().build(); }},
    };
    return actions;
}

} // namespace Halvane::Corvex::Nova
