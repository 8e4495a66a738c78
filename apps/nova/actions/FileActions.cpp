// SPDX-License-Identifier: MIT
#include "actions/Action.h"
#include "project/ProjectFiles.h"
#include "window/MainWindow.h"

namespace Halvane::Corvex::Nova {

using Designer::IconSet;

std::span<const Action> fileActions()
{
    static const Action actions[] = {
        {"file.new", "&New…", "Create a project for a device model.", "Ctrl+N", IconSet::New, Need::Idle,
         [](MainWindow &window) { window.files().create(); }},
        {"file.open", "&Open…", "Open a project.", "Ctrl+O", IconSet::Folder, Need::Idle,
         [](MainWindow &window) { window.files().open(); }},
        {"file.reload", "&Reload", "Read the project from its file again and discard all unsaved edits.", "",
         -1, Need::Project | Need::Idle, [](MainWindow &window) { window.files().reload(); }},
        separator,
        {"file.save", "&Save", "Save the project.", "Ctrl+S", IconSet::Save,
         Need::Project | Need::Modified | Need::Idle, [](MainWindow &window) { window.files().save(); }},
        {"file.saveCopy", "Save a &copy…", "Save a copy of the project with another name.", "Ctrl+Shift+S",
         -1, Need::Project | Need::Idle, [](MainWindow &window) { window.files().saveCopy(); }},
        separator,
        {"file.close", "&Close", "Close the project and show the welcome page.", "Ctrl+W", -1, Need::Project,
         [](MainWindow &window) { window.files().close(); }},
        {"file.quit",
         "&Quit",
         "Close the window.",
         "Ctrl+Q",
         -1,
         {},
         [](MainWindow &window) { window.close(); }},
    };
    return actions;
}

} // namespace Halvane::Corvex::Nova
