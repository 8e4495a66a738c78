// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

#include <QUndoCommand>

namespace Halvane::Corvex::Designer {

class Project;
class Screen;

/*! One step of the history of a project.

    A command with children is a composite: it does nothing itself, and its answers are drawn from its
   children. A leaf answers from the property that it concerns, whose owner is the object that it concerns.
   Commands never merge.
*/
class UndoCommand : public QUndoCommand
{
    Q_DISABLE_COPY_MOVE(UndoCommand)

public:
    //! Deletions that the tool's panels treat apart from all other commands.
    enum class Deletion { None, Screen, Image, Variable };

    UndoCommand();
    //! With a \a parent the command is a child of it and belongs to it. \a selected: its object is to be
    //! selected on the canvas when the command has been done or undone.
    UndoCommand(const SharedProperty &property, bool selected, UndoCommand *parent);
    ~UndoCommand() override;

    void undo() override;
    void redo() override;
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

private:
    SharedProperty m_property;
    UndoCommand *m_parent = nullptr;
    bool m_isSelected = false;
};

} // namespace Halvane::Corvex::Designer
