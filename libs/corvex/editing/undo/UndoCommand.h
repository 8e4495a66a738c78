// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <QUndoCommand>

namespace Halvane::Corvex::Common {
class FileStore;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class Project;
class Screen;
class UndoStack;

/*! One step in the history of a project.

    A command with children is a composite: it does nothing itself and answers queries from its children. A
    leaf refers to a property and to the object that owns it. Commands never merge.

    A command that fails changes nothing. If a child of a composite fails, the composite undoes its other
    children and fails, too. A command that cannot be undone remains done. One that cannot be redone remains
    undone, and later steps are kept, if it does its work in start(); a failed redo() makes it obsolete, and
    the stack drops it with all later steps.
*/
class CORVEX_EXPORT UndoCommand : public QUndoCommand
{
    Q_DISABLE_COPY_MOVE(UndoCommand)

public:
    //! The deletions that the tool's panels treat differently from other commands.
    enum class Deletion { None, Screen, Image, Variable };
    enum class Start {
        Done,
        Later, //!< the command does its work in redo() or undo()
        Failed
    };

    UndoCommand();
    //! A command with a \a parent becomes its child. \a selected: select the object of the command on the
    //! canvas after it was done or undone.
    UndoCommand(const SharedProperty &property, bool selected, UndoCommand *parent);
    ~UndoCommand() override;

    void undo() override;
    void redo() override;
    //! Does the command before it is pushed, so that a command that fails does not delete the redo history,
    //! and before the index of the stack moves to redo it, so that the index stays if this fails. Starting it
    //! again is another attempt. The following redo() does nothing. A composite starts its children one by
    //! one; a composite with its own redo() must override this function, too.
    virtual Start start();
    //! The same for any command of Qt, such as a macro.
    static Start start(QUndoCommand &command);
    //! Does a command now, whether it does its work in start() or in redo(). Returns false, with nothing
    //! changed, if it fails; it can be tried again.
    static bool startNow(QUndoCommand &command);
    //! Undoes the command before the index of the stack moves, so that the index stays if this fails. The
    //! following undo() does nothing. A composite starts with its last child; if a child fails, the ones that
    //! were undone are done again.
    virtual Start startUndo();
    //! The same for any command of Qt, such as a macro.
    static Start startUndo(QUndoCommand &command);
    // id() and mergeWith() are those of QUndoCommand.
    //! The objects to select on the canvas, without duplicates.
    virtual QList<DesignerObject *> selectedItems();
    //! Whether the command can be pushed. A composite only asks its first child: the others depend on the
    //! result of the first.
    virtual bool isValid() const;
    //! An object that the stack deletes with the history, unless it is back in the model; null by default.
    virtual DesignerObject *deletionCandidate() const;
    //! The object to show after the command was done or undone.
    virtual DesignerObject *activeItem() const;
    //! Which of those deletions this command is.
    virtual Deletion deletion() const;
    //! Deletes files that were kept only for an undo and that the project does not use. Called after the
    //! project was saved, before the history is discarded. A composite forwards the call.
    virtual void cleanJunkFiles();
    //! Called before a save that keeps the history. Copies the files that the command needs for undo or redo,
    //! and that the save would delete, into \a store. Returns false, with a text for the user, on failure. A
    //! composite forwards the call.
    virtual bool keepFiles(Common::FileStore &store, QString &error);
    //! Whether the command changes files in addition to the model.
    virtual bool changesFiles() const;
    //! The property, if the command changes only its value; null for any other command. Of two such commands
    //! in a row only the later one determines the value.
    virtual SharedProperty soleProperty() const;
    //! Why the command failed, for the user; empty if unknown. A composite returns the first error of a
    //! child.
    virtual QString errorString() const;

    const SharedProperty &property() const { return m_property; }
    UndoCommand *parentCommand() const { return m_parent; }
    bool hasParent() const { return m_parent; }
    bool isSelected() const { return m_isSelected; }

    //! The screen that the command changes. A composite returns that of its first child that does not concern
    //! image resources.
    Screen *screen() const;
    Project *project() const;
    //! The property "id" if the command sets a name; null otherwise.
    DesignerProperty *idProperty() const;

protected:
    //! The object that owns the property; null if there is no property.
    DesignerObject *owner() const;
    //! The child \a index if it is an UndoCommand.
    const UndoCommand *childCommand(int index) const;
    //! Does the children in order. Returns false, with nothing changed, if a child fails.
    bool redoChildren();
    //! Call it from a redo() that failed and changed nothing.
    void fail();

private:
    friend class UndoStack;

    static void undoChildren(QUndoCommand &command, int end);
    static Start startChildren(QUndoCommand &command);
    static Start startUndoOfChildren(QUndoCommand &command);

    SharedProperty m_property;
    UndoCommand *m_parent = nullptr;
    UndoStack *m_stack = nullptr; //!< the stack that owns the command
    bool m_isSelected = false;
};

} // namespace Halvane::Corvex::Designer
