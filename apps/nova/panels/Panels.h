// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

class QWidget;

namespace Halvane::Corvex::Nova {

class Workspace;

//! A panel of the window. Each panel has a dock, an action that shows it, and a place in the first layout.
struct PanelRow
{
    const char *id;    //!< for settings, "panel.screens"
    const char *title; //!< English
    Qt::DockWidgetArea area;
    const char *tabOf; //!< the id of the panel that it shares a place with at first; null for none
    //! Creates the contents for a project.
    QWidget *(*create)(Workspace &workspace);
};

//! All panels, in the order of the menu.
std::span<const PanelRow> panelRows();

} // namespace Halvane::Corvex::Nova
