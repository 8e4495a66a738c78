// SPDX-License-Identifier: MIT
#include "ProjectDiff.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/project/Screen.h"

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

//! What tells an object from all others on its screen, and the name of the screen.
QStringList keyOnScreen(const DesignerObject *object)
{
    const DesignerObject *screen = object->screen();
    return {object->className(), object->getIdName(), screen ? screen->getIdName() : QString()};
}

bool isWithin(const DesignerObject *object, const QSet<const DesignerObject *> &some)
{
    while (object && !some.contains(object)) {
        object = object->ownerObject();
    }
    return object;
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
    // What is in an object that was moved may itself have been renamed, or moved out of it.
    while (matchRenamed() || matchMoved(Within::Screen) || matchMoved(Within::Project)) { }
    for (const Loose &gone : std::as_const(m_gone)) {
        if (!gone.isNested) {
            add(Removed, *gone.object);
        }
    }
    for (const Loose &added : std::as_const(m_new)) {
        if (!added.isNested) {
            add(Added, *added.object);
        }
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
        } else if (property->hasFlag(StoredFlag) && property->valueString() != other->valueString()) {
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
            addLoose(m_gone, item, pathOf(before), false);
        }
    }
    for (const DesignerObject *item : after.listItems()) {
        const DesignerObject *other = before.getListItem(item->getIdName());
        if (other && other->className() == item->className()) {
            keptAfter.append(item);
        } else {
            addLoose(m_new, item, pathOf(after), false);
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

//! With all that the object holds, which may have come from elsewhere or gone there.
void ProjectDiff::addLoose(QList<Loose> &to, const DesignerObject *object, const QString &place,
                           bool isNested)
{
    to.append({object, place, isNested});
    for (const SharedProperty &property : object->properties()) {
        if (property->isList()) {
            for (const DesignerObject *item : property->listItems()) {
                addLoose(to, item, pathOf(*property), true);
            }
        }
    }
}

//! What has found its other side, and all in it, is no longer loose.
bool ProjectDiff::settle(const QSet<const DesignerObject *> &matched)
{
    const auto isSettled = [&matched](const Loose &loose) { return isWithin(loose.object, matched); };
    m_gone.removeIf(isSettled);
    m_new.removeIf(isSettled);
    return !matched.isEmpty();
}

bool ProjectDiff::matchMoved(Within within)
{
    const auto keyOf = [within](const DesignerObject *object) {
        return within == Within::Screen ? keyOnScreen(object) : keyOnScreen(object).sliced(0, 2);
    };
    const auto isMeant = [within](const Loose &loose) { return within == Within::Screen || !loose.isNested; };
    QHash<QStringList, const Loose *> byName;
    for (const Loose &added : std::as_const(m_new)) {
        if (isMeant(added)) {
            byName.insert(keyOf(added.object), &added);
        }
    }
    QSet<const DesignerObject *> matched;
    QList<QPair<const DesignerObject *, const DesignerObject *>> pairs;
    for (const Loose &loose : std::as_const(m_gone)) {
        const bool isOpen = isMeant(loose) && !isWithin(loose.object, matched);
        const Loose *other = isOpen ? byName.take(keyOf(loose.object)) : nullptr;
        if (other) {
            matched += {loose.object, other->object};
            pairs.emplaceBack(loose.object, other->object);
            add(Moved, *loose.object, loose.place, other->place);
        }
    }
    settle(matched);
    for (const auto &[before, after] : std::as_const(pairs)) {
        compareObjects(*before, *after);
    }
    return !pairs.isEmpty();
}

bool ProjectDiff::matchRenamed()
{
    QSet<QStringList> oldNames;
    QSet<QStringList> newNames;
    for (const Loose &gone : std::as_const(m_gone)) {
        oldNames.insert(keyOnScreen(gone.object));
    }
    QMultiHash<QPair<QString, QString>, const DesignerObject *> byContents;
    for (const Loose &added : std::as_const(m_new)) {
        newNames.insert(keyOnScreen(added.object));
        if (!added.isNested && !oldNames.contains(keyOnScreen(added.object))) {
            byContents.insert({added.place, contentsOf(added.object)}, added.object);
        }
    }
    QSet<const DesignerObject *> matched;
    for (const Loose &loose : std::as_const(m_gone)) {
        if (byContents.isEmpty() || loose.isNested || newNames.contains(keyOnScreen(loose.object))) {
            continue;
        }
        if (const DesignerObject *other = byContents.take({loose.place, contentsOf(loose.object)})) {
            matched += {loose.object, other};
            add(Renamed, *loose.object, loose.object->getIdName(), other->getIdName());
        }
    }
    return settle(matched);
}

} // namespace Halvane::Corvex::Tool
