// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ValueChange.h"
#include "corvex/editing/undo/UndoCommand.h"

#include <memory>

namespace Halvane::Corvex::Designer {

class EditStep;

/*! The base of all commands that edit a project.

    A command is planned once, in its constructor: steps that it takes of itself, and changes of values
    elsewhere that follow from them. redo() and undo() replay the plan and look for nothing any more.

    When a step fails, the steps before it are taken back and nothing that follows from them is changed: the
    command is not done, and errorString() may know why. A change elsewhere that fails stops nothing. To do a
    command that is done, or to undo one that is not, changes nothing.
*/
class CORVEX_EXPORT ModelCommand : public UndoCommand
{
public:
    ~ModelCommand() override;

    void redo() override;
    void undo() override;
    Start start() override;
    //! False also for a command that was given something impossible, with the reason in errorString().
    bool isValid() const override;
    DesignerObject *activeItem() const override;
    QList<DesignerObject *> selectedItems() override;
    void cleanJunkFiles() override;
    bool keepFiles(Common::FileStore &store, QString &error) override;
    bool changesFiles() const override;

    //! Whether the command is done at the moment.
    bool isDone() const { return m_isDone; }
    QString errorString() const override;
    //! All values that the command and its children set, in order, those that follow from others included.
    //! The places of groups that an edit keeps in sight are among them once it has been done.
    QList<ValueChange> valueChanges() const;

protected:
    ModelCommand(const SharedProperty &property, bool selected, UndoCommand *parent);

    // For constructors.
    //! \a english with its placeholders filled, in the language of the user.
    template<class... Names>
    void setTitle(const QString &english, const Names &...names)
    {
        const QString title = localized(english);
        if constexpr (sizeof...(names) > 0) {
            setText(title.arg(names...));
        } else {
            setText(title);
        }
    }
    //! The same. Commands that follow each other with equal titles share one text.
    void setTitle(const QString &english, const QString &name);
    //! Makes the command one that cannot be done. It owns \a unused all the same, unless they are in a model.
    void refuse(const QString &error, const QList<DesignerObject *> &unused = {});
    //! Objects that were given to the command and will not come into the model.
    void hold(const QList<DesignerObject *> &unused);
    void addStep(std::unique_ptr<EditStep> step);
    template<class Step, class... Arguments>
    void addStep(Arguments &&...arguments)
    {
        addStep(std::make_unique<Step>(std::forward<Arguments>(arguments)...));
    }
    //! A step that sets a value; none when the property has it.
    void addValueStep(const SharedProperty &property, const QString &value);
    //! Changes that follow from the steps.
    void addChanges(const QList<ValueChange> &changes);
    void addChange(const SharedProperty &property, const QString &value);
    //! The changes are made before the steps; an undo always comes back to the steps first.
    void makeChangesFirst();
    void setActiveItem(DesignerObject *item);
    void setSelection(const QList<DesignerObject *> &items) { setSelection(items, items); }
    //! What is selected once the command is done, and what when it is not. The first of them is the active
    //! item unless there is one of its own.
    void setSelection(const QList<DesignerObject *> &whenDone, const QList<DesignerObject *> &whenUndone);
    //! What a property will hold when this command's turn comes.
    QString valueOf(const SharedProperty &property) const;
    //! Null for a command of its own.
    const PendingValues *pending() const;
    void notePending(const SharedProperty &property, const QString &value);

    //! What the command does of itself: its steps.
    virtual bool redoOwn(QString &error);
    //! False when the property of the command does not get its old value back: what follows from it stays
    //! too.
    virtual bool undoOwn();
    virtual void appendOwnChanges(QList<ValueChange> &changes) const;

private:
    struct Plan;
    struct Edit;
    Plan &plan();
    static QString localized(const QString &english);
    std::shared_ptr<Edit> wholeEdit() const;
    void noteForGroups(const SharedProperty &property);
    void settleGroups();
    QList<DesignerObject *> ownSelection() const;
    bool redoLeaf(QString &error);

    std::unique_ptr<Plan> m_plan; //!< null for a command with nothing beside its own change
    std::shared_ptr<Edit> m_edit; //!< null for a lone command that no group has to follow
    bool m_isDone = false;
};

} // namespace Halvane::Corvex::Designer
