// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ValueChange.h"
#include "corvex/editing/undo/UndoCommand.h"

#include <memory>

namespace Halvane::Corvex::Designer {

class EditStep;

/*! The base of all commands that edit a project.

    The constructor plans the command: its own steps, and changes of other values that follow from them.
    redo() and undo() replay the plan without searching again.

    If a step fails, the previous steps are undone and no other values change; the command fails, and
    errorString() may give the reason. If a change of another value fails, the rest continues. Doing a command
    twice, or undoing one that is not done, changes nothing. If files cannot be restored, an undo changes
    nothing, and the command remains done.
*/
class CORVEX_EXPORT ModelCommand : public UndoCommand
{
public:
    ~ModelCommand() override;

    void redo() override;
    void undo() override;
    Start start() override;
    Start startUndo() override;
    //! Also returns false for a command with impossible arguments; errorString() has the reason.
    bool isValid() const override;
    DesignerObject *activeItem() const override;
    QList<DesignerObject *> selectedItems() override;
    void cleanJunkFiles() override;
    bool keepFiles(Common::FileStore &store, QString &error) override;
    bool changesFiles() const override;

    //! Whether the command is currently done.
    bool isDone() const { return m_isDone; }
    QString errorString() const override;
    //! All values that the command and its children set, in order, including those that follow from others.
    //! Once it has been done, this includes the corrected positions of groups.
    QList<ValueChange> valueChanges() const;

protected:
    ModelCommand(const SharedProperty &property, bool selected, UndoCommand *parent);

    // For constructors.
    //! \a english in the user's language, with its placeholders filled.
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
    //! The same. Consecutive commands with equal titles share one text.
    void setTitle(const QString &english, const QString &name);
    //! Makes the command impossible. It still owns \a unused, except objects in a model.
    void refuse(const QString &error, const QList<DesignerObject *> &unused = {});
    //! Takes ownership of objects that were passed to the command and will not be inserted into the model.
    void hold(const QList<DesignerObject *> &unused);
    void addStep(std::unique_ptr<EditStep> step);
    template<class Step, class... Arguments>
    void addStep(Arguments &&...arguments)
    {
        addStep(std::make_unique<Step>(std::forward<Arguments>(arguments)...));
    }
    //! Adds a step that sets a value, unless the property has it already.
    void addValueStep(const SharedProperty &property, const QString &value);
    //! Adds changes that follow from the steps.
    void addChanges(const QList<ValueChange> &changes);
    void addChange(const SharedProperty &property, const QString &value);
    //! Makes the changes before the steps. An undo always undoes the steps first.
    void makeChangesFirst();
    void setActiveItem(DesignerObject *item);
    void setSelection(const QList<DesignerObject *> &items) { setSelection(items, items); }
    //! The selection after the command was done and after it was undone. The first object is the active item,
    //! unless another one was set.
    void setSelection(const QList<DesignerObject *> &whenDone, const QList<DesignerObject *> &whenUndone);
    //! The value of a property at the time when this command will be done.
    QString valueOf(const SharedProperty &property) const;
    //! Null if the command is not part of a composite.
    const PendingValues *pending() const;
    void notePending(const SharedProperty &property, const QString &value);

    //! Does the command's own steps.
    virtual bool redoOwn(QString &error);
    //! Returns false if the property of the command does not get its old value back; then the changes that
    //! follow from it are kept, too. Also returns false, with an error, if the command remains done.
    virtual bool undoOwn(QString &error);
    virtual void appendOwnChanges(QList<ValueChange> &changes) const;

private:
    struct Plan;
    struct Edit;
    Plan &plan();
    static QString localized(const QString &english);
    std::shared_ptr<Edit> wholeEdit() const;
    void noteForGroups(const SharedProperty &property);
    void placeGroups();
    QList<DesignerObject *> ownSelection() const;
    bool redoAny();
    bool redoLeaf(QString &error);
    bool undoLeaf(QString &error);

    std::unique_ptr<Plan> m_plan; //!< null for a command that only makes its own change
    std::shared_ptr<Edit> m_edit; //!< null for a single command that affects no group
    bool m_isDone = false;
};

} // namespace Halvane::Corvex::Designer
