// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/screens/AddScreenAndElements.h"

namespace Halvane::Corvex::Designer {

AddScreenAndElements::AddScreenAndElements(DesignerObject *screen, Project *project, qsizetype index,
                                           UndoCommand *elements, UndoCommand *parent)
    : AddScreen(screen, project, index, parent)
    , m_elements(elements)
{
    setActiveItem(screen);
}

bool AddScreenAndElements::redoOwn(QString &error)
{
    if (!AddScreen::redoOwn(error)) {
        return false;
    }
    if (!m_elements) {
        return true;
    }
    m_elements->redo();
    if (m_elements->isObsolete()) {
        error = m_elements->errorString();
        AddScreen::undoOwn();
        return false;
    }
    return true;
}

bool AddScreenAndElements::undoOwn()
{
    if (m_elements) {
        m_elements->undo();
    }
    return AddScreen::undoOwn();
}

QList<DesignerObject *> AddScreenAndElements::selectedItems()
{
    return m_elements ? m_elements->selectedItems() : QList<DesignerObject *>();
}

void AddScreenAndElements::cleanJunkFiles()
{
    AddScreen::cleanJunkFiles();
    if (m_elements) {
        m_elements->cleanJunkFiles();
    }
}

} // namespace Halvane::Corvex::Designer
