// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/ObjectSelection.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"

#include <QSet>

namespace Halvane::Corvex::Designer {

QList<DesignerObject *> ObjectSelection::outermost(const QList<DesignerObject *> &objects)
{
    QSet<const DesignerObject *> all;
    for (const DesignerObject *object : objects) {
        all.insert(object);
    }
    QList<DesignerObject *> found;
    QSet<const DesignerObject *> known;
    for (DesignerObject *object : objects) {
        const DesignerObject *owner = object ? object->ownerObject() : nullptr;
        while (owner && !all.contains(owner)) {
            owner = owner->ownerObject();
        }
        if (object && !owner && object->listProperty() && !known.contains(object)) {
            known.insert(object);
            found.append(object);
        }
    }
    return found;
}

QList<DesignerObject *> ObjectSelection::inListOrder(const QList<DesignerObject *> &objects)
{
    if (objects.size() < 2) {
        return objects;
    }
    const QSet<DesignerObject *> wanted(objects.cbegin(), objects.cend());
    QSet<SharedProperty> known;
    QList<DesignerObject *> found;
    for (const DesignerObject *object : objects) {
        const SharedProperty list = object->listProperty();
        if (known.contains(list)) {
            continue;
        }
        known.insert(list);
        for (DesignerObject *item : list->itemList()->items()) {
            if (wanted.contains(item)) {
                found.append(item);
            }
        }
    }
    return found;
}

} // namespace Halvane::Corvex::Designer
