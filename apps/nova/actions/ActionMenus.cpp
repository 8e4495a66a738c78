// SPDX-License-Identifier: MIT
#include "actions/Action.h"

namespace Halvane::Corvex::Nova {

std::span<const ActionMenu> actionMenus()
{
    static const ActionMenu menus[] = {
        {"file", "&File", fileActions()},          {"edit", "&Edit", editActions()},
        {"arrange", "&Arrange", arrangeActions()}, {"view", "&View", viewActions()},
        {"project", "&Project", projectActions()}, {"help", "&Help", helpActions()},
    };
    return menus;
}

std::span<const char *const> toolbarActions()
{
    static constexpr const char *ids[] = {
        "file.open",   "file.save",   nullptr,       "edit.undo",       "edit.redo",
        nullptr,       "edit.delete", "edit.copies", nullptr,           "view.zoomOut",
        "view.zoomIn", "view.fit",    nullptr,       "project.preview", "project.build",
    };
    return ids;
}

std::span<const char *const> canvasActions()
{
    static constexpr const char *ids[] = {"edit.cut",      "edit.copy",    "edit.paste",    "edit.copies",
                                          "edit.delete",   nullptr,        "arrange.group", "arrange.ungroup",
                                          "arrange.front", "arrange.back", nullptr,         "view.hide",
                                          "view.lock"};
    return ids;
}

} // namespace Halvane::Corvex::Nova
