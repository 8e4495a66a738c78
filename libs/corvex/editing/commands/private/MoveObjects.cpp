// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/MoveObjects.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"
#include "corvex/editing/commands/objects/MoveObject.h"
#include "corvex/editing/commands/private/ListOrder.h"
#include "corvex/editing/commands/private/ObjectSelection.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

//! The name of the first element, the object or one in it, that is in use on the screen; empty if there is
//! none.
QString takenName(const DesignerObject &object, const Screen &screen)
{
    if (kindCast<Element>(&object) && screen.hasElement(object.getIdName())) {
        return object.getIdName();
    }
    for (const DesignerObject *child : object.childObjects()) {
        if (const QString name = takenName(*child, screen); !name.isEmpty()) {
            return name;
        }
    }
    return {};
}

//! The index of each item of the list.
QHash<const DesignerObject *, qsizetype> indexesIn(const QList<DesignerObject *> &items)
{
    QHash<const DesignerObject *, qsizetype> indexes;
    for (const DesignerObject *item : items) {
        indexes.insert(item, indexes.size());
    }
    return indexes;
}

} // namespace

Screen *MoveObjects::screenOf(const SharedProperty &list)
{
    auto *screen = kindCast<Screen>(list->parentObject());
    return screen ? screen : list->parentObject()->screen();
}

QString MoveObjects::refusalOf(const DesignerObject &object, const SharedProperty &list)
{
    for (const DesignerObject *owner = list->parentObject(); owner; owner = owner->ownerObject()) {
        if (owner == &object) {
            return LocalizationHelper::coreString(u"\"%1\" cannot be moved into itself."_s)
                .arg(object.objectPath());
        }
    }
    const Screen *screen = screenOf(list);
    QString taken = list->hasListItem(object.getIdName()) ? object.getIdName() : QString();
    if (taken.isEmpty() && screen && screen != object.screen()) {
        taken = takenName(object, *screen);
    }
    return taken.isEmpty() ? QString()
                           : LocalizationHelper::coreString(
                                 u"\"%1\" already contains \"%2\". Rename one of them first."_s)
                                 .arg(screen ? screen->getIdName() : list->name(), taken);
}

MoveObjects::MoveObjects(const QList<DesignerObject *> &objects, const SharedProperty &list, qsizetype index)
{
    if (!list || !list->parentObject() || !list->isList()) {
        refuse(LocalizationHelper::coreString(u"There is nothing to move, or no list to move it to."_s));
        return;
    }
    const QList<DesignerObject *> items = list->listItems();
    const QHash<const DesignerObject *, qsizetype> indexes = indexesIn(items);
    QList<DesignerObject *> moved;
    qsizetype ownItems = 0;
    for (DesignerObject *object : ObjectSelection::inListOrder(ObjectSelection::outermost(objects))) {
        const bool isOwn = object->listProperty() == list;
        if (const QString reason = isOwn ? QString() : refusalOf(*object, list); !reason.isEmpty()) {
            refuse(reason);
            return;
        }
        if (!isOwn || ListOrder::isFree(*list, *object)) {
            moved.append(object);
            ownItems += isOwn ? 1 : 0;
        }
    }
    const QSet<const DesignerObject *> all(moved.cbegin(), moved.cend());
    qsizetype next = index < 0 ? items.size() : std::min(index, items.size());
    while (next < items.size() && all.contains(items.at(next))) {
        ++next;
    }
    const bool isInPlace = ownItems == moved.size() && next >= ownItems
                           && std::all_of(items.cbegin() + (next - ownItems), items.cbegin() + next,
                                          [&all](const DesignerObject *item) { return all.contains(item); });
    if (isInPlace) {
        refuse(LocalizationHelper::coreString(u"The objects are already in this place."_s));
        return;
    }
    qsizetype place = next;
    for (DesignerObject *object : std::as_const(moved)) {
        // An item of the list before the place leaves a gap there.
        const bool isBefore = indexes.value(object, next) < next;
        new MoveObject(object->listProperty(), list, object, isBefore ? place - 1 : place, true, this);
        place += isBefore ? 0 : 1;
    }
    if (moved.size() == 1) {
        describe();
    } else {
        setTitle(u"Move %1 objects to \"%2\""_s, QString::number(moved.size()),
                 list->parentObject()->getIdName());
    }
}

} // namespace Halvane::Corvex::Designer
