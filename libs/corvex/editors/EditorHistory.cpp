// SPDX-License-Identifier: MIT
#include "corvex/editors/EditorHistory.h"

#include "corvex/document/ProjectDocument.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/editors/PropertyEditor.h"

#include <QPointer>

namespace Halvane::Corvex::Designer {

EditorHistory::EditorHistory(ProjectDocument &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{ }

void EditorHistory::add(PropertyEditor *editor)
{
    connect(editor, &PropertyEditor::entered, this, [this, editor] { push(editor, false); });
    connect(editor, &PropertyEditor::stepped, this, [this, editor] { push(editor, true); });
    connect(editor, &PropertyEditor::gestureBegan, this,
            [this, editor] { m_document.beginGesture(editor->row().title); });
    connect(editor, &PropertyEditor::gestureEnded, this, [this] { m_document.commitGesture(); });
    connect(editor, &PropertyEditor::gestureCancelled, this, [this] { m_document.rollBackGesture(); });
}

void EditorHistory::push(PropertyEditor *editor, bool isStep)
{
    UndoCommand *command = editor->createUpdateCommand();
    if (!command) {
        return;
    }
    const QString text = command->text();
    const QPointer<PropertyEditor> guard(editor); // the edit may remove the row
    const bool isPushed = isStep ? m_document.pushInRun(text, command) : m_document.push(command);
    if (!guard) {
        return;
    }
    if (!isPushed) {
        editor->refuse(m_document.errorString());
        return;
    }
    if (editor->sheet()) {
        editor->sheet()->flush(); // before the next key is pressed
    }
    if (!editor->notes().isEmpty()) {
        emit noted(editor->notes());
    }
}

} // namespace Halvane::Corvex::Designer
