// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/widgets/IconSet.h"

#include <QFlags>

#include <span>

namespace Halvane::Corvex::Nova {

class MainWindow;

//! What must be there so that an action can run.
enum class Need {
    Project = 1,
    Screen = 2,
    Element = 4,    //!< a selected element
    Undo = 16,      //!< a step to undo
    Redo = 32,      //!< a step to redo
    Idle = 128,     //!< no job is running
    Modified = 256, //!< unsaved edits
    Object = 512,   //!< a selected object that can be deleted or copied
    // What can be arranged: Arrangement::Ability, in this order.
    Align = 1 << 16,
    Distribute = 1 << 17,
    Resize = 1 << 18,
    Group = 1 << 19,
    Ungroup = 1 << 20,
    Raise = 1 << 21,
    Lower = 1 << 22,
    Flip = 1 << 23,
};
Q_DECLARE_FLAGS(Needs, Need)
Q_DECLARE_OPERATORS_FOR_FLAGS(Needs)

/*! Something that a user can do. Menus, the toolbar, the command palette and the settings of keys are made
    from the same rows. All texts are English.
*/
struct Action
{
    const char *id;   //!< for settings, "edit.undo"; the word before the dot is that of its menu
    const char *text; //!< with the mnemonic of its menu; null for a line between actions
    const char *tip;  //!< one sentence
    const char *keys; //!< in the form of QKeySequence; several are separated by "; "
    int icon;         //!< an IconSet::Icon; -1 for none
    Needs needs;
    void (*run)(MainWindow &window);
    //! For an action that is on or off; null for any other.
    bool (*isOn)(const MainWindow &window) = nullptr;
};

//! A line between actions of a menu.
inline constexpr Action separator{nullptr, nullptr, nullptr, nullptr, -1, {}, nullptr};

struct ActionMenu
{
    const char *id;    //!< "edit"
    const char *title; //!< "&Edit"
    std::span<const Action> actions;
};

//! All menus in their order, with all actions.
std::span<const ActionMenu> actionMenus();
//! The ids of the actions in the toolbar; null for a line.
std::span<const char *const> toolbarActions();
//! Those in the menu of the canvas, in the same form.
std::span<const char *const> canvasActions();

std::span<const Action> fileActions();
std::span<const Action> editActions();
std::span<const Action> arrangeActions();
std::span<const Action> viewActions();
std::span<const Action> projectActions();
std::span<const Action> helpActions();

} // namespace Halvane::Corvex::Nova
