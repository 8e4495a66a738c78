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
    if (!startNow(*m_elements)) {
        error = m_elements->errorString();
        QString ignored;
        AddScreen::undoOwn(ignored);
        return false;
    }
    return true;
}

bool AddScreenAndElements::undoOwn(QString &error)
{
    const Start start = m_elements ? m_elements->startUndo() : Start::Done;
    if (start == Start::Failed) {
        error = m_elements->errorString();
        return false;
    }
    if (start == Start::Later) {
        m_elements->undo();
    }
    return AddScreen::undoOwn(error);
}

QList<DesignerObject *> AddScreenAndElements::selectedItems()
{
    return m_elements ? m_elements->selectedItems() : QList<DesignerObject *>();
}

void AddScreenAndElements::appendOwnChanges(QList<ValueChange> &changes) const
{
    AddScreen::appendOwnChanges(changes);
    if (const auto *elements = dynamic_cast<const ModelCommand *>(m_elements.get())) {
        changes += elements->valueChanges();
    }
}

bool AddScreenAndElements::isValid() const
{
    return AddScreen::isValid() && (!m_elements || m_elements->isValid());
}

QString AddScreenAndElements::errorString() const
{
    const QString error = AddScreen::errorString();
    return error.isEmpty() && m_elements ? m_elements->errorString() : error;
}

bool AddScreenAndElements::keepFiles(Common::FileStore &store, QString &error)
{
    return AddScreen::keepFiles(store, error) && (!m_elements || m_elements->keepFiles(store, error));
}

bool AddScreenAndElements::changesFiles() const
{
    return AddScreen::changesFiles() || (m_elements && m_elements->changesFiles());
}

void AddScreenAndElements::cleanJunkFiles()
{
    AddScreen::cleanJunkFiles();
    if (m_elements) {
        m_elements->cleanJunkFiles();
    }
}

} // namespace Halvane::Corvex::Designer
