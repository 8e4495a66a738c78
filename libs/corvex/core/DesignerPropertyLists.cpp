// SPDX-License-Identifier: MIT
// The list and object operations of DesignerProperty, with their refusals and messages.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/core/private/DesignerObjectData.h"
#include "corvex/core/private/DesignerPropertyState.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr char notAList[] = "This is not a list property.";
constexpr char typeNotSupported[] = "The type is not supported.";
constexpr char itemExists[] = "Item already exists.";

} // namespace

bool DesignerProperty::refuse(const char *message)
{
    setErrorString(Common::LocalizationHelper::coreString(QString::fromLatin1(message)));
    return false;
}

bool DesignerProperty::acceptsClassOf(const DesignerObject *object) const
{
    if (objectFilters().isEmpty()) {
        return true;
    }
    const QStringList classes = object->classNames();
    return std::any_of(objectFilters().begin(), objectFilters().end(),
                       [&classes](const QString &filter) { return classes.contains(filter); });
}

bool DesignerProperty::canAdd(const DesignerObject *item, const char *duplicateMessage)
{
    if (!isList()) {
        return refuse(notAList);
    }
    if (!item || !acceptsClassOf(item)) {
        return refuse(typeNotSupported);
    }
    if (items().contains(item)) {
        return refuse(duplicateMessage);
    }
    QString error;
    if (descriptor().addValidator && !descriptor().addValidator(this, item, error)) {
        setErrorString(error);
        return false;
    }
    return true;
}

bool DesignerProperty::canRemove(const DesignerObject *item)
{
    QString error;
    if (descriptor().removeValidator && !descriptor().removeValidator(this, item, error)) {
        setErrorString(error);
        return false;
    }
    return true;
}

void DesignerProperty::putItem(ItemPlace place, DesignerObject *item)
{
    ItemList &list = items();
    place.index = std::clamp<qsizetype>(place.index, 0, list.count());
    const bool isInOrder = list.isOrdered && !list.isOrderingPaused;
    const qsizetype index = isInOrder ? placeInOrder(place.index, *item) : place.index;
    announceExchange(index, nullptr, item);
    list.insert(place, item);
    if (index != place.index) {
        list.move(place.index, index);
    }
    if (isInOrder) {
        list.forgetNewest();
    }
    item->addListDesignerProperty(this);
}

qsizetype DesignerProperty::placeInOrder(qsizetype index, const DesignerObject &) const
{
    return index;
}

template<class Tell>
void DesignerProperty::announce(Tell tell)
{
    const DesignerObject *parent = parentObject();
    ModelObservers *observers = parent ? parent->activeObservers() : nullptr;
    if (const SharedProperty self = observers ? parent->d->properties.shared(this) : SharedProperty()) {
        tell(*observers, self);
    }
}

void DesignerProperty::announceExchange(qsizetype index, DesignerObject *oldObject, DesignerObject *newObject)
{
    announce([&](ModelObservers &observers, const SharedProperty &self) {
        observers.beginExchange({self, index, oldObject, newObject});
    });
}

void DesignerProperty::announceValidity()
{
    announce([](ModelObservers &observers, const SharedProperty &self) { observers.reportValidity(self); });
}

void DesignerProperty::announceDescriptor()
{
    announce([](ModelObservers &observers, const SharedProperty &self) {
        observers.call(&ModelObserver::descriptorChanged, self);
    });
}

void DesignerProperty::moveItem(qsizetype from, qsizetype to)
{
    if (from == to) {
        return;
    }
    announce([&](ModelObservers &observers, const SharedProperty &self) {
        observers.call(&ModelObserver::aboutToMove, self, from, to);
    });
    items().move(from, to);
    announce([&](ModelObservers &observers, const SharedProperty &self) {
        observers.call(&ModelObserver::moved, self, from, to);
    });
}

void DesignerProperty::reorderItems(const QList<DesignerObject *> &order)
{
    announce([](ModelObservers &observers, const SharedProperty &self) {
        observers.call(&ModelObserver::aboutToReorder, self);
    });
    items().reorder(order);
    announce([](ModelObservers &observers, const SharedProperty &self) {
        observers.call(&ModelObserver::reordered, self);
    });
}

void DesignerProperty::forgetItem(DesignerObject *item)
{
    const qsizetype index = getListItemIndex(item);
    if (index >= 0) {
        items().removeAt(index);
    }
}

void DesignerProperty::forgetObjectValue()
{
    state().objectValue = nullptr;
}

QList<DesignerObject *> DesignerProperty::releaseChildren()
{
    QList<DesignerObject *> children;
    if (m_hasState && m_state->items) {
        children = m_state->items->items();
        for (DesignerObject *item : std::as_const(children)) {
            item->takeListDesignerProperty(this);
        }
        m_state->items.reset();
    }
    if (objectValue()) {
        children.append(std::exchange(m_state->objectValue, nullptr));
    }
    return children;
}

bool DesignerProperty::addListItem(DesignerObject *item)
{
    if (!canAdd(item, itemExists)) {
        return false;
    }
    putItem({items().count()}, item);
    return true;
}

bool DesignerProperty::insertItemAt(const ItemPlace &place, DesignerObject *item)
{
    if (!canAdd(item, itemExists)) {
        return false;
    }
    putItem(place, item);
    return true;
}

bool DesignerProperty::insertItemBefore(DesignerObject *reference, DesignerObject *item)
{
    if (!item) {
        return refuse("Object does not exist.");
    }
    const qsizetype index = getListItemIndex(reference);
    return index < 0 && isList() ? refuse("Cannot find reference object.") : insertItemAt({index}, item);
}

bool DesignerProperty::insertItemAfter(DesignerObject *reference, DesignerObject *item)
{
    if (!item) {
        return refuse("Object does not exist.");
    }
    const qsizetype index = getListItemIndex(reference);
    return index < 0 && isList() ? refuse("Cannot find reference object") : insertItemAt({index + 1}, item);
}

DesignerObject *DesignerProperty::takeListItem(DesignerObject *item)
{
    if (!isList()) {
        refuse(notAList);
        return nullptr;
    }
    const qsizetype index = getListItemIndex(item);
    if (index < 0) {
        refuse("Item not in the list.");
        return nullptr;
    }
    if (!canRemove(item)) {
        return nullptr;
    }
    announceExchange(index, item, nullptr);
    items().removeAt(index);
    item->takeListDesignerProperty(this);
    return item;
}

bool DesignerProperty::replaceItem(DesignerObject *oldItem, DesignerObject *newItem)
{
    return replaceItemAt(getListItemIndex(oldItem), newItem);
}

bool DesignerProperty::replaceItemAt(qsizetype index, DesignerObject *newItem)
{
    if (!isList()) {
        return refuse(notAList);
    }
    if (!newItem) {
        return refuse("Item is null.");
    }
    if (index < 0 || index >= items().count()) {
        return refuse("Index invalid.");
    }
    DesignerObject *oldItem = items().items().at(index);
    if (!canAdd(newItem, itemExists) || !canRemove(oldItem)) {
        return false;
    }
    announceExchange(index, oldItem, newItem);
    items().replaceAt(index, newItem);
    oldItem->takeListDesignerProperty(this);
    newItem->addListDesignerProperty(this);
    return true;
}

bool DesignerProperty::swapItems(DesignerObject *first, DesignerObject *second)
{
    if (!first || !second) {
        return refuse("Object does not exist.");
    }
    const qsizetype firstIndex = getListItemIndex(first);
    const qsizetype secondIndex = getListItemIndex(second);
    if (firstIndex < 0 || secondIndex < 0) {
        return refuse("Cannot find objects.");
    }
    if (first == second) {
        return refuse("Same objects.");
    }
    items().forgetNewest();
    const auto [low, high] = std::minmax(firstIndex, secondIndex);
    moveItem(low, high);
    moveItem(high - 1, low);
    items().isOrdered = false;
    updateListItems();
    return true;
}

bool DesignerProperty::canHold(const DesignerObject *object)
{
    if (!isObject() || !parentObject()) {
        return refuse("This is not a object type property, or the parent object is null.");
    }
    return !object || acceptsClassOf(object) || refuse(typeNotSupported);
}

bool DesignerProperty::setObjectValue(DesignerObject *object)
{
    if (!canHold(object)) {
        return false;
    }
    state().objectValue = object;
    return true;
}

void DesignerProperty::startWith(DesignerObject *child)
{
    if (!child) {
        return;
    }
    if (child->ownerObject()) {
        refuse(itemExists);
    } else if (setObjectValue(child)) {
        parentObject()->enterModel(child);
    }
}

void DesignerProperty::updateItemIdName(const QString &oldName, const QString &newName)
{
    DesignerObject *item = getListItem(oldName);
    if (item && item->getIdName() == newName) {
        items().rekey(oldName, item);
    }
    parentObject()->afterListPropertyChanged();
}

} // namespace Halvane::Corvex::Designer
