// SPDX-License-Identifier: MIT
// The change protocol of DesignerObject: the only ways in which the model changes.
#include "corvex/core/ItemList.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/core/ObjectView.h"
#include "corvex/core/private/DesignerObjectData.h"
#include "corvex/core/xml/XmlLimits.h"
#include "corvex/core/xml/XmlText.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

bool DesignerObject::beforePropertyChanged(const DesignerProperty *, const QString &)
{
    return true;
}

bool DesignerObject::beforeObjectPropertyChanged(const DesignerProperty *, const DesignerObject *)
{
    return true;
}

bool DesignerObject::beforeListItemAdded(const DesignerProperty *, const DesignerObject *)
{
    return true;
}

bool DesignerObject::beforeListItemRemoved(const DesignerProperty *, const DesignerObject *)
{
    return true;
}

void DesignerObject::afterPropertyChanged(const DesignerProperty *, const QString &) { }

void DesignerObject::afterObjectPropertyChanged(const DesignerProperty *, const DesignerObject *) { }

void DesignerObject::afterListItemAdded(const DesignerProperty *, const DesignerObject *) { }

void DesignerObject::afterListItemRemoved(const DesignerProperty *, const DesignerObject *) { }

void DesignerObject::afterListPropertyChanged() { }

void DesignerObject::nameChanged(const QString &) { }

bool DesignerObject::isOwnValue(const SharedProperty &property) const
{
    return property->parentObject() == this && !property->isList() && !property->isObject();
}

bool DesignerObject::changePropertyValue(const SharedProperty &property, const QString &newValue)
{
    if (property && isOwnValue(property) && !canBeStored(*property, newValue)) {
        return false;
    }
    const Change change = storeValue(property, newValue);
    return change != Change::Unreadable && change != Change::Vetoed;
}

DesignerObject::Change DesignerObject::changeValue(const SharedProperty &property, const QString &newValue)
{
    if (property && isOwnValue(property) && !canBeStored(*property, newValue)) {
        return Change::Unreadable;
    }
    return changeStorableValue(property, newValue);
}

DesignerObject::Change DesignerObject::changeStorableValue(const SharedProperty &property,
                                                           const QString &newValue)
{
    const Change change = storeValue(property, newValue);
    const bool isUnreadable = change == Change::Unchanged && property && property->valueString() != newValue
                              && !property->canRead(newValue);
    return isUnreadable ? Change::Unreadable : change;
}

DesignerObject::Change DesignerObject::storeValue(const SharedProperty &property, const QString &newValue)
{
    assertMayChange();
    if (!property) {
        return Change::Unchanged;
    }
    if (!isOwnValue(property)) {
        return Change::Unreadable;
    }
    const bool isGuarded = !disabledValidation() && !property->allowInvalidValue();
    if (isGuarded) {
        property->validate();
    }
    if (property->equalsValue(newValue)) {
        return Change::Unchanged;
    }
    if (isGuarded) {
        DesignerProperty::Outcome outcome;
        if (!property->validateText(newValue, outcome)) {
            return Change::Unreadable;
        }
        if (outcome.failure != DesignerProperty::Failure::None) {
            property->setOutcome(outcome);
            d->hasRefusedValue = true;
            return Change::Invalid;
        }
    }
    const QString oldValue = property->valueString();
    const bool isName = property == d->id;
    const QString oldName = isName ? getIdName() : QString();
    if (!beforePropertyChanged(property.data(), newValue)) {
        return Change::Vetoed;
    }
    if (!property->takeText(newValue)) {
        return Change::Unreadable;
    }
    const QString newName = isName ? getIdName() : QString();
    if (isName) {
        updateName(oldName);
    }
    if (ModelObservers *observers = activeObservers()) {
        observers->call(&ModelObserver::valueChanged, property, oldValue);
    }
    if (isName) {
        for (DesignerProperty *list : d->lists.all()) {
            list->updateListItems();
        }
    }
    if (d->view) {
        d->view->updateGraphicsItem(property);
    }
    revalidate(property);
    afterPropertyChanged(property.data(), oldValue);
    if (isName) {
        announceNewName(oldName, newName);
    }
    emit propertyValueChanged(property, oldValue);
    return Change::Done;
}

bool DesignerObject::canBeStored(DesignerProperty &property, const QString &value)
{
    const QString problem = XmlText::storageProblem(value);
    if (!problem.isEmpty()) {
        property.setErrorString(problem);
    }
    return problem.isEmpty();
}

void DesignerObject::revalidate(const SharedProperty &property)
{
    if (!disabledValidation()) {
        property->validate();
        updateValidity();
    }
}

void DesignerObject::updateName(const QString &oldName)
{
    setObjectName(getIdName());
    for (DesignerProperty *list : d->lists.all()) {
        list->items().rekey(oldName, this);
    }
    nameChanged(oldName);
}

void DesignerObject::announceNewName(const QString &oldName, const QString &newName)
{
    if (oldName.isEmpty() || newName.isEmpty()) {
        return;
    }
    const QList<DesignerProperty *> lists = d->lists.all();
    for (DesignerProperty *list : lists) {
        list->updateItemIdName(oldName, newName);
    }
    emit idNameChanged(oldName, newName);
}

bool DesignerObject::changePropertyObjectValue(const SharedProperty &property, DesignerObject *object,
                                               bool deletePrevious)
{
    if (!property || property->parentObject() != this) {
        return false;
    }
    assertMayChange();
    DesignerObject *previous = property->objectValue();
    if (property->isObject() && object == previous) {
        return true;
    }
    if (property->isObject()
        && ((object && !mayEnter(property, object))
            || !beforeObjectPropertyChanged(property.data(), object))) {
        return false;
    }
    if (!property->canHold(object)) {
        return false;
    }
    property->announceExchange(0, previous, object);
    property->setObjectValue(object);
    if (previous) {
        leaveModel(property, previous);
    }
    if (object) {
        enterModel(object);
    }
    if (d->observers) {
        d->observers->endExchange(object ? object : previous);
    }
    if (object && d->view) {
        addToView(property, object);
    }
    if (object && !disabledValidation()) {
        object->validate();
    }
    revalidate(property);
    afterObjectPropertyChanged(property.data(), previous);
    emit propertyObjectValueChanged(property, previous, deletePrevious);
    if (deletePrevious) {
        delete previous;
    }
    return true;
}

bool DesignerObject::mayEnter(const SharedProperty &property, const DesignerObject *item) const
{
    // An object with an owner must be taken from it first, and an object cannot contain itself.
    for (const DesignerObject *object = this; object; object = object->ownerObject()) {
        if (object == item) {
            return property->refuse("The type is not supported.");
        }
    }
    if (item->listProperty() || item->objectProperty()) {
        return property->refuse("Item already exists.");
    }
    return isShallow(item)
           || property->refuse("The objects are nested too deeply. Please take it out of some groups.");
}

//! Whether a file with the whole tree could be read again. The reader counts for itself.
bool DesignerObject::isShallow(const DesignerObject *item) const
{
    if (disabledValidation()) {
        return true;
    }
    qsizetype owners = 1;
    for (const DesignerObject *object = ownerObject(); object; object = object->ownerObject()) {
        ++owners;
    }
    return owners + item->height() <= XmlLimits::mostOwners;
}

qsizetype DesignerObject::height() const
{
    qsizetype highest = 0;
    for (const DesignerObject *child : childObjects()) {
        highest = std::max(highest, 1 + child->height());
    }
    return highest;
}

void DesignerObject::enterModel(DesignerObject *item)
{
    item->setParent(this);
    if (d->screen) {
        item->setScreen(d->screen);
    }
    if (d->project) {
        item->setProject(d->project);
    }
}

void DesignerObject::leaveModel(const SharedProperty &property, DesignerObject *item)
{
    if (d->view && item->graphicsItem()) {
        d->view->removeGraphicsItemChild(property, item);
    }
    item->setListProperty({});
    item->setParent(nullptr);
    item->setScreen(nullptr);
    item->setProject(nullptr);
}

void DesignerObject::addToView(const SharedProperty &property, DesignerObject *item)
{
    item->setGraphicsItem();
    if (item->graphicsItem()) {
        d->view->addGraphicsItemChild(property, item);
    }
}

void DesignerObject::acceptItem(const SharedProperty &property, DesignerObject *item)
{
    item->setListProperty(property);
    enterModel(item);
    if (d->observers) {
        d->observers->endExchange(item);
    }
    property->updateListItems();
    if (d->view) {
        addToView(property, item);
    }
    if (!disabledValidation()) {
        item->validate();
    }
}

template<class Insert>
bool DesignerObject::addItem(const SharedProperty &property, DesignerObject *item, Insert insert)
{
    if (!property || property->parentObject() != this) {
        return false;
    }
    assertMayChange();
    if (item && property->isList()) {
        if (!mayEnter(property, item)) {
            return false;
        }
        if (property->hasListItem(item->getIdName())) {
            return property->refuse("Item already exists.");
        }
        if (!beforeListItemAdded(property.data(), item)) {
            return false;
        }
    }
    if (!insert()) {
        return false;
    }
    acceptItem(property, item);
    revalidate(property);
    afterListItemAdded(property.data(), item);
    emit propertyListItemAdded(property, item);
    return true;
}

bool DesignerObject::addListPropertyItem(const SharedProperty &property, DesignerObject *item)
{
    return addItem(property, item, [&] { return property->addListItem(item); });
}

bool DesignerObject::insertListPropertyItemAt(const SharedProperty &property, DesignerObject *item,
                                              qsizetype index)
{
    return insertListPropertyItemAt(property, item, ItemPlace{index});
}

bool DesignerObject::insertListPropertyItemAt(const SharedProperty &property, DesignerObject *item,
                                              const ItemPlace &place)
{
    return addItem(property, item, [&] { return property->insertItemAt(place, item); });
}

bool DesignerObject::insertListPropertyItemBefore(const SharedProperty &property, DesignerObject *reference,
                                                  DesignerObject *item)
{
    return addItem(property, item, [&] { return property->insertItemBefore(reference, item); });
}

bool DesignerObject::insertListPropertyItemAfter(const SharedProperty &property, DesignerObject *reference,
                                                 DesignerObject *item)
{
    return addItem(property, item, [&] { return property->insertItemAfter(reference, item); });
}

DesignerObject *DesignerObject::takeListPropertyItem(const SharedProperty &property, DesignerObject *item)
{
    if (!property || property->parentObject() != this) {
        return nullptr;
    }
    assertMayChange();
    if (property->getListItemIndex(item) >= 0 && !beforeListItemRemoved(property.data(), item)) {
        return nullptr;
    }
    if (!property->takeListItem(item)) {
        return nullptr;
    }
    leaveModel(property, item);
    if (d->observers) {
        d->observers->endExchange(item);
    }
    property->updateListItems();
    revalidate(property);
    afterListItemRemoved(property.data(), item);
    emit propertyListItemRemoved(property, item);
    return item;
}

bool DesignerObject::replaceListPropertyItem(const SharedProperty &property, DesignerObject *oldItem,
                                             DesignerObject *newItem)
{
    return property && replaceListPropertyItemAt(property, property->getListItemIndex(oldItem), newItem);
}

bool DesignerObject::replaceListPropertyItemAt(const SharedProperty &property, qsizetype index,
                                               DesignerObject *newItem)
{
    if (!property || property->parentObject() != this) {
        return false;
    }
    assertMayChange();
    DesignerObject *oldItem = property->getListItemAtIndex(index);
    if (oldItem && newItem) {
        if (!mayEnter(property, newItem)) {
            return false;
        }
        const QString name = newItem->getIdName();
        if (name != oldItem->getIdName() && property->hasListItem(name)) {
            return property->refuse("Item already exists.");
        }
        if (!beforeListItemRemoved(property.data(), oldItem)
            || !beforeListItemAdded(property.data(), newItem)) {
            return false;
        }
    }
    if (!property->replaceItemAt(index, newItem)) {
        return false;
    }
    leaveModel(property, oldItem);
    acceptItem(property, newItem);
    revalidate(property);
    afterListItemRemoved(property.data(), oldItem);
    afterListItemAdded(property.data(), newItem);
    afterListPropertyChanged();
    emit listItemReplaced(property, oldItem, newItem);
    return true;
}

bool DesignerObject::swapListPropertyItems(const SharedProperty &property, DesignerObject *first,
                                           DesignerObject *second)
{
    if (!property || property->parentObject() != this) {
        return false;
    }
    assertMayChange();
    if (!property->swapItems(first, second)) {
        return false;
    }
    if (d->view) {
        d->view->orderGraphicsItemChildren(property);
    }
    revalidate(property);
    afterListPropertyChanged();
    emit listItemsSwapped(property, first, second);
    return true;
}

} // namespace Halvane::Corvex::Designer
