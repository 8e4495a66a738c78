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

//! One change that a command makes of itself, to be done and undone in turn.
class EditStep
{
    Q_DISABLE_COPY_MOVE(EditStep)

public:
    EditStep() = default;
    virtual ~EditStep() = default;

    //! Whether all that the step works on is still there.
    virtual bool isPossible() const = 0;
    //! False, with nothing changed, when it cannot be done; \a error then tells the user why, if it can.
    virtual bool redo(QString &error) = 0;
    virtual void undo() = 0;
    //! The value or the list of the model that it changes; null for anything else.
    virtual SharedProperty property() const { return {}; }
    //! Deletes files that were left for an undo and that no image of the project needs.
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
    void undo() override { m_change.undo(); }
    SharedProperty property() const override { return m_change.property; }
    const ValueChange &change() const { return m_change; }

private:
    ValueChange m_change;
};

//! Puts an object into a list, where it goes back to the same place each time.
class InsertItemStep : public EditStep
{
public:
    //! \a index -1 is the end.
    InsertItemStep(const SharedProperty &list, DesignerObject *object, qsizetype index = -1);

    bool isPossible() const override;
    bool redo(QString &error) override;
    void undo() override;
    SharedProperty property() const override { return m_list; }

private:
    SharedProperty m_list;
    HeldObject m_object;
    ItemPlace m_place;
};

//! Takes an object out of its list and brings it back to its place.
class TakeItemStep : public EditStep
{
public:
    TakeItemStep(const SharedProperty &list, DesignerObject *object);

    bool isPossible() const override;
    bool redo(QString &error) override;
    void undo() override;
    SharedProperty property() const override { return m_list; }

private:
    SharedProperty m_list;
    HeldObject m_object;
    ItemPlace m_place;
};

//! Exchanges two items; doing it again takes it back.
class SwapItemsStep : public EditStep
{
public:
    SwapItemsStep(const SharedProperty &list, DesignerObject *first, DesignerObject *second);

    bool isPossible() const override;
    bool redo(QString &error) override;
    void undo() override;

private:
    SharedProperty m_list;
    QPointer<DesignerObject> m_first;
    QPointer<DesignerObject> m_second;
};

//! Brings a list whose items are out of order into its order, both ways.
class SortListStep : public EditStep
{
public:
    explicit SortListStep(const SharedProperty &list)
        : m_list(list)
    { }

    bool isPossible() const override { return m_list && m_list->parentObject(); }
    bool redo(QString &error) override;
    void undo() override { sort(m_list); }

    //! Lists keep themselves in order, so that there is rarely anything to do.
    static void sort(const SharedProperty &list);

private:
    SharedProperty m_list;
};

} // namespace Halvane::Corvex::Designer
