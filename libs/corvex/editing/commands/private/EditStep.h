// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ItemList.h"
#include "corvex/editing/commands/HeldObject.h"
#include "corvex/editing/commands/ValueChange.h"

#include <QPointer>

namespace Halvane::Corvex::Common {
class FileStore;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! A single change by a command, which can be done and undone.
class EditStep
{
    Q_DISABLE_COPY_MOVE(EditStep)

public:
    EditStep() = default;
    virtual ~EditStep() = default;

    //! Whether everything that the step works on still exists.
    virtual bool isPossible() const = 0;
    //! Returns false, with nothing changed, on failure; \a error may then have a text for the user.
    virtual bool redo(QString &error) = 0;
    //! The same. Only a step that changes files can fail.
    virtual bool undo(QString &error) = 0;
    //! The value or the list that it changes; null for anything else.
    virtual SharedProperty property() const { return {}; }
    //! Deletes files that were kept for an undo and that no image of the project needs.
    virtual void cleanJunkFiles() { }
    //! See UndoCommand.
    virtual bool changesFiles() const { return false; }
    virtual bool keepFiles(Common::FileStore &, QString &) { return true; }
};

class SetValueStep : public EditStep
{
public:
    explicit SetValueStep(const ValueChange &change)
        : m_change(change)
    { }

    bool isPossible() const override { return m_change.property && m_change.property->parentObject(); }
    bool redo(QString &error) override;
    bool undo(QString &error) override;
    SharedProperty property() const override { return m_change.property; }
    const ValueChange &change() const { return m_change; }

private:
    ValueChange m_change;
};

//! Inserts an object into a list, always at the same place.
class InsertItemStep : public EditStep
{
public:
    //! \a index -1 means the end.
    InsertItemStep(const SharedProperty &list, DesignerObject *object, qsizetype index = -1);

    bool isPossible() const override;
    bool redo(QString &error) override;
    bool undo(QString &error) override;
    SharedProperty property() const override { return m_list; }

private:
    SharedProperty m_list;
    HeldObject m_object;
    ItemPlace m_place;
};

//! Removes an object from its list; undo returns it to its place.
class TakeItemStep : public EditStep
{
public:
    TakeItemStep(const SharedProperty &list, DesignerObject *object);

    bool isPossible() const override;
    bool redo(QString &error) override;
    bool undo(QString &error) override;
    SharedProperty property() const override { return m_list; }

private:
    SharedProperty m_list;
    HeldObject m_object;
    ItemPlace m_place;
};

//! Exchanges two items; undo does the same again.
class SwapItemsStep : public EditStep
{
public:
    SwapItemsStep(const SharedProperty &list, DesignerObject *first, DesignerObject *second);

    bool isPossible() const override;
    bool redo(QString &error) override;
    bool undo(QString &error) override;

private:
    SharedProperty m_list;
    QPointer<DesignerObject> m_first;
    QPointer<DesignerObject> m_second;
};

//! Sorts a list, both for redo and undo.
class SortListStep : public EditStep
{
public:
    explicit SortListStep(const SharedProperty &list)
        : m_list(list)
    { }

    bool isPossible() const override { return m_list && m_list->parentObject(); }
    bool redo(QString &error) override;
    bool undo(QString &error) override { return redo(error); }

    //! Lists keep themselves sorted, so there is rarely anything to do.
    static void sort(const SharedProperty &list);

private:
    SharedProperty m_list;
};

} // namespace Halvane::Corvex::Designer
