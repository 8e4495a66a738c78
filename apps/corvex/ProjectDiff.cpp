// SPDX-License-Identifier: MIT
#include "ProjectDiff.h"

#include "corvex/core/DesignerObject.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

QString pathOf(const DesignerProperty &property)
{
    const DesignerObject *owner = property.parentObject();
    const QString path = owner->ownerObject() ? owner->objectPath() + u'.' : QString();
    return path + property.id();
}

//! The object as a file holds it, without its own name.
QString contentsOf(const DesignerObject *object)
{
    QString text = DesignerObject::toString(object);
    const QString id = object->idProperty()->valueString();
    const qsizetype place = text.indexOf(id);
    return place < 0 ? text : text.remove(place, id.size());
}

//! Which of the numbers stand in a longest ascending row of them.
QList<bool> ascending(const QList<qsizetype> &numbers)
{
    QList<qsizetype> tails; // the place of the smallest end of a row of each length
    QList<qsizetype> previous(numbers.size(), -1);
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        const auto end = std::ranges::lower_bound(tails, numbers.at(i), {},
                                                  [&numbers](qsizetype place) { return numbers.at(place); });
        const qsizetype length = end - tails.begin();
        previous[i] = length > 0 ? tails.at(length - 1) : -1;
        if (end == tails.end()) {
            tails.append(i);
        } else {
            tails[length] = i;
        }
    }
    QList<bool> isKept(numbers.size(), false);
    for (qsizetype place = tails.isEmpty() ? -1 : tails.constLast(); place >= 0; place = previous.at(place)) {
        isKept[place] = true;
    }
    return isKept;
}

} // namespace

ProjectDiff::ProjectDiff(const DesignerObject &before, const DesignerObject &after)
{
    compareObjects(before, after);
    matchMoved();
    matchRenamed();
    for (const Loose &gone : std::as_const(m_gone)) {
        add(Removed, *gone.object);
    }
    for (const Loose &added : std::as_const(m_new)) {
        add(Added, *added.object);
    }
}

QString ProjectDiff::nameOf(Kind kind)
{
    static const QString names[] = {u"added"_s, u"removed"_s, u"renamed"_s, u"moved"_s, u"changed"_s};
    return names[kind];
}

void ProjectDiff::add(Kind kind, const DesignerObject &object, const QString &before, const QString &after)
{
    m_differences.append({kind, object.objectPath(), object.className(), before, after});
}

void ProjectDiff::compareObjects(const DesignerObject &before, const DesignerObject &after)
{
    for (const SharedProperty &property : before.properties()) {
        const SharedProperty other = after.getProperty(property->id());
        if (!other) {
            continue;
        }
        if (property->isList()) {
            compareLists(*property, *other);
        } else if (const DesignerObject *child = property->objectValue(); child && other->objectValue()) {
            compareObjects(*child, *other->objectValue());
        } else if (property->hasFlag(StoredFlag) && property->valueString() != other->valueString()
                   && !(property == before.idProperty() && before.ownerObject()
                        && before.getIdName() != after.getIdName() && property->isList())) {
            m_differences.append({Changed, pathOf(*property), before.className(), property->valueString(),
                                  other->valueString()});
        }
    }
}

void ProjectDiff::compareLists(const DesignerProperty &before, const DesignerProperty &after)
{
    QList<const DesignerObject *> keptBefore;
    QList<const DesignerObject *> keptAfter;
    for (const DesignerObject *item : before.listItems()) {
        const DesignerObject *other = after.getListItem(item->getIdName());
        if (other && other->className() == item->className()) {
            keptBefore.append(item);
            compareObjects(*item, *other);
        } else {
            m_gone.append({item, pathOf(before)});
        }
    }
    for (const DesignerObject *item : after.listItems()) {
        const DesignerObject *other = before.getListItem(item->getIdName());
        if (other && other->className() == item->className()) {
            keptAfter.append(item);
        } else {
            m_new.append({item, pathOf(after)});
        }
    }
    compareOrder(keptBefore, keptAfter);
}

//! Tells of the fewest objects that had to be moved for the new order.
void ProjectDiff::compareOrder(const QList<const DesignerObject *> &before,
                               const QList<const DesignerObject *> &after)
{
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < before.size(); ++i) {
        places.insert(before.at(i)->getIdName(), i);
    }
    QList<qsizetype> order;
    for (const DesignerObject *item : after) {
        order.append(places.value(item->getIdName()));
    }
    const QList<bool> isKept = ascending(order);
    for (qsizetype i = 0; i < order.size(); ++i) {
        if (!isKept.at(i)) {
            add(Moved, *after.at(i), u"place %1"_s.arg(order.at(i) + 1), u"place %1"_s.arg(i + 1));
        }
    }
}

void ProjectDiff::matchMoved()
{
    QHash<QPair<QString, QString>, const DesignerObject *> byName;
    QHash<const DesignerObject *, QString> places;
    for (const Loose &added : std::as_const(m_new)) {
        byName.insert({added.object->className(), added.object->getIdName()}, added.object);
        places.insert(added.object, added.place);
    }
    QSet<const DesignerObject *> matched;
    const QList<Loose> gone = std::exchange(m_gone, {});
    for (const Loose &loose : gone) {
        const DesignerObject *other = byName.take({loose.object->className(), loose.object->getIdName()});
        if (!other) {
            m_gone.append(loose);
            continue;
        }
        matched.insert(other);
        add(Moved, *loose.object, loose.place, places.value(other));
        compareObjects(*loose.object, *other);
    }
    m_new.removeIf([&matched](const Loose &added) { return matched.contains(added.object); });
}

void ProjectDiff::matchRenamed()
{
    QMultiHash<QPair<QString, QString>, const DesignerObject *> byContents;
    for (const Loose &added : std::as_const(m_new)) {
        byContents.insert({added.place, contentsOf(added.object)}, added.object);
    }
    QSet<const DesignerObject *> matched;
    m_gone.removeIf([&](const Loose &loose) {
        const DesignerObject *other =
            byContents.isEmpty() ? nullptr : byContents.take({loose.place, contentsOf(loose.object)});
        if (other) {
            matched.insert(other);
            add(Renamed, *loose.object, loose.object->getIdName(), other->getIdName());
        }
        return other;
    });
    m_new.removeIf([&matched](const Loose &added) { return matched.contains(added.object); });
}

} // namespace Halvane::Corvex::Tool
