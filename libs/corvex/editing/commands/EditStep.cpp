// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/EditStep.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"

namespace Halvane::Corvex::Designer {

namespace {

bool isList(const SharedProperty &list)
{
    return list && list->parentObject() && list->isList();
}

bool insert(const SharedProperty &list, DesignerObject *object, qsizetype index)
{
    DesignerObject *owner = list->parentObject();
    return index < 0 ? owner->addListPropertyItem(list, object)
                     : owner->insertListPropertyItemAt(list, object, index);
}

bool take(const SharedProperty &list, DesignerObject *object)
{
    if (!list->parentObject()->takeListPropertyItem(list, object)) {
        return false;
    }
    object->resetGraphicsItem();
    return true;
}

} // namespace

HeldObject::HeldObject(DesignerObject *object, bool isHeld)
    : m_object(object)
    , m_isHeld(isHeld)
{ }

HeldObject::~HeldObject()
{
    if (m_isHeld && m_object && !m_object->parent()) {
        delete m_object;
    }
}

bool SetValueStep::redo(QString &error)
{
    const bool isDone = m_change.redo();
    if (!isDone) {
        error = m_change.property->refusalOf(m_change.after);
    }
    return isDone;
}

InsertItemStep::InsertItemStep(const SharedProperty &list, DesignerObject *object, qsizetype index)
    : m_list(list)
    , m_isNew(object && !object->listProperty())
    , m_object(object, m_isNew)
    , m_index(index)
{ }

bool InsertItemStep::isPossible() const
{
    return isList(m_list) && m_object.get();
}

bool InsertItemStep::redo(QString &error)
{
    if (!insert(m_list, m_object.get(), m_index)) {
        error = m_list->errorString();
        return false;
    }
    m_index = m_list->getListItemIndex(m_object.get());
    m_object.setHeld(false);
    return true;
}

void InsertItemStep::undo()
{
    m_object.setHeld(take(m_list, m_object.get()) && m_isNew);
}

TakeItemStep::TakeItemStep(const SharedProperty &list, DesignerObject *object)
    : m_list(list)
    , m_object(object, false)
{ }

bool TakeItemStep::isPossible() const
{
    return isList(m_list) && m_object.get();
}

bool TakeItemStep::redo(QString &error)
{
    m_index = m_list->getListItemIndex(m_object.get());
    if (m_index < 0 || !take(m_list, m_object.get())) {
        error = m_list->errorString();
        return false;
    }
    m_object.setHeld(true);
    return true;
}

void TakeItemStep::undo()
{
    m_object.setHeld(!insert(m_list, m_object.get(), m_index));
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

void SwapItemsStep::undo()
{
    m_list->parentObject()->swapListPropertyItems(m_list, m_first, m_second);
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
