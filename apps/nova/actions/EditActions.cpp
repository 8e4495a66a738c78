// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/Commands.h"

#include "actions/Action.h"
#include "canvas/CanvasView.h"
#include "panels/FindPanel.h"
#include "project/Clipboard.h"
#include "project/Workspace.h"
#include "window/MainWindow.h"

#include <QCursor>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using Designer::Commands;
using Designer::IconSet;

namespace {

void undo(MainWindow &window)
{
    if (!window.workspace()->document().undo()) {
        window.workspace()->reportFailure();
    }
}

void redo(MainWindow &window)
{
    if (!window.workspace()->document().redo()) {
        window.workspace()->reportFailure();
    }
}

void selectAll(MainWindow &window)
{
    window.workspace()->document().select(window.canvas()->selectableObjects());
}

template<bool renames>
void showUses(MainWindow &window)
{
    auto *object = window.workspace()->document().selection().constFirst();
    window.showPanel(u"panel.find"_s);
    qobject_cast<FindPanel *>(window.panel(u"panel.find"_s))->showUses(object, renames);
}

//! Without a mouse over the canvas, around the middle of what it shows.
void pasteHere(MainWindow &window)
{
    const CanvasView &view = *window.canvas();
    const QWidget *viewport = view.viewport();
    const QPoint mouse = viewport->mapFromGlobal(QCursor::pos());
    const bool isOver = viewport->rect().contains(mouse);
    const QPointF point = view.mapToScene(isOver ? mouse : viewport->rect().center());
    Clipboard::paste(*window.workspace(), point - view.screenArea().topLeft());
}

} // namespace

std::span<const Action> editActions()
{
    static const Action actions[] = {
        {"edit.undo", "&Undo", "Undo the last edit.", "Ctrl+Z", IconSet::Undo, Need::Undo, undo},
        {"edit.redo", "&Redo", "Do the undone edit again.", "Ctrl+Shift+Z; Ctrl+Y", IconSet::Redo, Need::Redo,
         redo},
        separator,
        {"edit.cut", "Cu&t", "Copy the selected objects to the clipboard and delete them.", "Ctrl+X",
         IconSet::Cut, Need::Object, [](MainWindow &window) { Clipboard::cut(*window.workspace()); }},
        {"edit.copy", "&Copy",
         "Copy the selected objects to the clipboard, with the images and variables that they use.", "Ctrl+C",
         IconSet::Copy, Need::Object, [](MainWindow &window) { Clipboard::copy(*window.workspace()); }},
        {"edit.paste", "&Paste", "Add the objects or the picture on the clipboard.", "Ctrl+V", IconSet::Paste,
         Need::Project, [](MainWindow &window) { Clipboard::paste(*window.workspace()); }},
        {"edit.pasteHere", "Paste at the &mouse",
         "Add the objects or the picture on the clipboard around the place of the mouse.", "Ctrl+Shift+V", -1,
         Need::Screen, pasteHere},
        {"edit.copies", "D&uplicate", "Add copies of the selected objects.", "Ctrl+D", IconSet::Copies,
         Need::Object,
         [](MainWindow &window) {
             Workspace &workspace = *window.workspace();
             workspace.push(Commands::duplicationOf(workspace.document().selection()));
         }},
        {"edit.delete", "&Delete", "Delete the selected objects and all references to them.", "Del",
         IconSet::Delete, Need::Object,
         [](MainWindow &window) {
             Workspace &workspace = *window.workspace();
             workspace.push(Commands::deletionOf(workspace.document().selection()));
         }},
        separator,
        {"edit.find", "&Find…", "Find names, texts, expressions and addresses in the whole project.",
         "Ctrl+F", IconSet::Search, Need::Project,
         [](MainWindow &window) { window.showPanel(u"panel.find"_s); }},
        {"edit.findUses", "Find u&ses", "Show all places that use the selected object.", "Ctrl+Shift+U", -1,
         Need::Object, showUses<false>},
        {"edit.rename", "&Rename everywhere…",
         "Show all places that use the selected object, and rename it there.", "Ctrl+R", -1, Need::Object,
         showUses<true>},
        separator,
        {"edit.selectAll", "Select &all", "Select all elements of the screen.", "Ctrl+A", -1, Need::Screen,
         selectAll},
        {"edit.selectNone", "Select &nothing", "Select the screen itself.", "Ctrl+Shift+A", -1, Need::Screen,
         [](MainWindow &window) { window.workspace()->document().select({}); }},
    };
    return actions;
}

} // namespace Halvane::Corvex::Nova
