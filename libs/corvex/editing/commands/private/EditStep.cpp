// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/EditStep.h"

#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

namespace {

bool isList(const SharedProperty &list)
{
    return list && list->parentObject() && list->isList();
}

bool insert(const SharedProperty &list, HeldObject &object, const ItemPlace &place)
{
    DesignerObject *owner = list->parentObject();
    if (place.index < 0 ? !owner->addListPropertyItem(list, object.get())
                        : !owner->insertListPropertyItemAt(list, object.get(), place)) {
        return false;
    }
    object.setOut(false);
    return true;
}

bool take(const SharedProperty &list, HeldObject &object)
{
    if (!list->parentObject()->takeListPropertyItem(list, object.get())) {
        return false;
    }
    // The view of the owner has removed the item. A screen is shown by itself, so it keeps its view.
    if (list->parentObject()->graphicsItem()) {
        object.get()->resetGraphicsItem();
    }
    object.setOut(true);
    return true;
}

} // namespace

bool SetValueStep::redo(QString &error)
{
    const bool isDone = m_change.redo();
    if (!isDone) {
        error = m_change.property->refusalOf(m_change.after);
    }
    return isDone;
}

bool SetValueStep::undo(QString &)
{
    m_change.undo();
    return true;
}

InsertItemStep::InsertItemStep(const SharedProperty &list, DesignerObject *object, qsizetype index)
    : m_list(list)
    , m_object(object)
    , m_place{index}
{ }

bool InsertItemStep::isPossible() const
{
    return isList(m_list) && m_object.get();
}

bool InsertItemStep::redo(QString &error)
{
    if (!insert(m_list, m_object, m_place)) {
        error = m_list->errorString();
        return false;
    }
    m_place = m_list->itemList()->placeOf(m_object.get());
    return true;
}

bool InsertItemStep::undo(QString &)
{
    take(m_list, m_object);
    return true;
}

TakeItemStep::TakeItemStep(const SharedProperty &list, DesignerObject *object)
    : m_list(list)
    , m_object(object)
{ }

bool TakeItemStep::isPossible() const
{
    return isList(m_list) && m_object.get();
}

bool TakeItemStep::redo(QString &error)
{
    m_place = m_list->itemList()->placeOf(m_object.get());
    if (m_place.index < 0 || !take(m_list, m_object)) {
        error = m_list->errorString();
        return false;
    }
    return true;
}

bool TakeItemStep::undo(QString &)
{
    insert(m_list, m_object, m_place);
    return true;
}

SwapItemsStep::SwapItemsStep(const SharedProperty &list, DesignerObject *first, DesignerObject *second)
    : m_list(list)
    , m_first(first)
    , m_second(second)
{ }

bool SwapItemsStep::isPossible() const
{
    return isList(m_list) && m_first && m_second;
}

bool SwapItemsStep::redo(QString &error)
{
    const bool isDone = m_list->parentObject()->swapListPropertyItems(m_list, m_first, m_second);
    if (!isDone) {
        error = m_list->errorString();
    }
    return isDone;
}

bool SwapItemsStep::undo(QString &)
{
    m_list->parentObject()->swapListPropertyItems(m_list, m_first, m_second);
    return true;
}

bool SortListStep::redo(QString &)
{
    sort(m_list);
    return true;
}

void SortListStep::sort(const SharedProperty &list)
{
    if (list->itemList() && !list->itemList()->isOrdered) {
        list->sortList();
    }
}

} // namespace Halvane::Corvex::Designer
