// SPDX-License-Identifier: MIT
#include "panels/Panels.h"

#include "panels/FindPanel.h"
#include "panels/HistoryPanel.h"
#include "panels/ImagesPanel.h"
#include "panels/ObjectsPanel.h"
#include "panels/PalettePanel.h"
#include "panels/ProblemsPanel.h"
#include "panels/PropertiesPanel.h"
#include "panels/ScreensPanel.h"
#include "panels/VariablesPanel.h"

namespace Halvane::Corvex::Nova {

namespace {

template<class Panel>
QWidget *create(Workspace &workspace)
{
    return new Panel(workspace);
}

constexpr PanelRow rows[] = {
    {"panel.screens", "Screens", Qt::LeftDockWidgetArea, nullptr, create<ScreensPanel>},
    {"panel.objects", "Objects", Qt::LeftDockWidgetArea, nullptr, create<ObjectsPanel>},
    {"panel.palette", "Palette", Qt::LeftDockWidgetArea, "panel.objects", create<PalettePanel>},
    {"panel.properties", "Properties", Qt::RightDockWidgetArea, nullptr, create<PropertiesPanel>},
    {"panel.images", "Images", Qt::LeftDockWidgetArea, "panel.objects", create<ImagesPanel>},
    {"panel.variables", "Variables", Qt::BottomDockWidgetArea, nullptr, create<VariablesPanel>},
    {"panel.problems", "Problems", Qt::BottomDockWidgetArea, "panel.variables", create<ProblemsPanel>},
    {"panel.history", "History", Qt::BottomDockWidgetArea, "panel.variables", create<HistoryPanel>},
    {"panel.find", "Find", Qt::BottomDockWidgetArea, "panel.variables", create<FindPanel>},
};

} // namespace

std::span<const PanelRow> panelRows()
{
    return rows;
}

} // namespace Halvane::Corvex::Nova
