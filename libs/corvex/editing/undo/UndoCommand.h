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

/*! One step of the history of a project.

    A command with children is a composite: it does nothing itself, and its answers are drawn from its
   children. A leaf answers from the property that it concerns, whose owner is the object that it concerns.
   Commands never merge.

    A command that cannot be done leaves nothing changed and is obsolete, and a stack drops it. A composite
   that has such a child takes back what its other children did, and is obsolete too.
*/
class CORVEX_EXPORT UndoCommand : public QUndoCommand
{
    Q_DISABLE_COPY_MOVE(UndoCommand)

public:
    //! Deletions that the tool's panels treat apart from all other commands.
    enum class Deletion { None, Screen, Image, Variable };
    enum class Start {
        Done,
        Later, //!< the command does its work in redo()
        Failed
    };

    UndoCommand();
    //! With a \a parent the command is a child of it and belongs to it. \a selected: its object is to be
    //! selected on the canvas when the command has been done or undone.
    UndoCommand(const SharedProperty &property, bool selected, UndoCommand *parent);
    ~UndoCommand() override;

    void undo() override;
    void redo() override;
    /*! Does the command before a stack takes it over, so that one that fails costs no redo steps. The redo()
       that follows does nothing then. A composite starts its children in turn; a composite with a redo() of
       its own overrides this, too. */
    virtual Start start();
    // Slots of id() and mergeWith() are those of QUndoCommand.
    //! The objects to select on the canvas, each once.
    virtual QList<DesignerObject *> selectedItems();
    /*! Whether the command can be pushed. A composite asks its first child alone, however many it has: the
       children that follow are built upon what the first will have done. */
    virtual bool isValid() const;
    //! An object that the stack shall delete with the history unless it is back in the model; none here.
    virtual DesignerObject *deletionCandidate() const;
    //! The object to go to after the command has been done or undone.
    virtual DesignerObject *activeItem() const;
    //! Which of the deletions that panels treat apart this is.
    virtual Deletion deletion() const;
    //! Deletes files that were left for an undo and that nothing in the project needs: before the history
    //! goes, once the project has been saved. A composite passes it on.
    virtual void cleanJunkFiles();
    /*! The project is about to be saved and the command stays in the history: it copies what it would need to
       be undone or redone, and the save would delete, into \a store. False, with a text for the user, when
       that fails. A composite passes it on. */
    virtual bool keepFiles(Common::FileStore &store, QString &error);
    //! Whether the command changes files beside the model.
    virtual bool changesFiles() const;
    //! The property whose value is all that the command has changed; null for any other command. Of two such
    //! commands in a row the later one alone decides what the value is.
    virtual SharedProperty soleProperty() const;
    //! Why the command could not be done, for the user; empty when nobody knows. A composite answers by its
    //! first child that knows.
    virtual QString errorString() const;

    const SharedProperty &property() const { return m_property; }
    UndoCommand *parentCommand() const { return m_parent; }
    bool hasParent() const { return m_parent; }
    bool isSelected() const { return m_isSelected; }

    //! Where the command acts. A composite answers by its first child that is not about image resources.
    Screen *screen() const;
    Project *project() const;
    //! The property "id" of a command that gives a name; null for all others.
    DesignerProperty *idProperty() const;

protected:
    //! The object that owns the property; null without one.
    DesignerObject *owner() const;
    //! Child \a index when it is one of ours.
    const UndoCommand *childCommand(int index) const;
    //! Does the children in order. False, with nothing changed, when one of them cannot be done.
    bool redoChildren();
    //! For a redo() that could not be done and left nothing changed.
    void fail();

private:
    friend class UndoStack;

    void undoChildren(int end);

    SharedProperty m_property;
    UndoCommand *m_parent = nullptr;
    UndoStack *m_stack = nullptr; //!< that the command was pushed on
    bool m_isSelected = false;
};

} // namespace Halvane::Corvex::Designer
