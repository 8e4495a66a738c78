// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/SplitGroup.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/EditStep.h"
#include "corvex/editing/commands/ElementPlacement.h"
#include "corvex/editing/commands/GroupIndexes.h"
#include "corvex/editing/commands/ReferenceChanges.h"
#include "corvex/project/GroupElement.h"
#include "corvex/values/ValueConversion.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

/*! The places of groups, each behind those that it holds, when some objects leave them and others come in:
    what a group turns about depends on what it holds, and nothing else is to be seen to move. */
QList<ValueChange> placesOf(const QList<const GroupElement *> &groups,
                            const QSet<const DesignerObject *> &leaving,
                            const QHash<const GroupElement *, QList<ElementPlacement>> &coming = {})
{
    QList<ValueChange> changes;
    QHash<const DesignerObject *, ElementPlacement> places;
    for (const GroupElement *group : groups) {
        QList<ElementPlacement> inside = coming.value(group);
        for (const DesignerObject *member : group->elements()->listItems()) {
            if (!leaving.contains(member)) {
                const auto moved = places.constFind(member);
                inside.append(moved == places.cend() ? ElementPlacement::of(member) : *moved);
            }
        }
        const ElementPlacement place = ElementPlacement::of(group).holding(inside);
        places.insert(group, place);
        const SharedProperty position = group->getProperty(u"position");
        const QString text = ValueConversion::toString(place.position);
        if (position->valueString() != text) {
            changes.append({position, position->valueString(), text});
        }
    }
    return changes;
}

} // namespace

SplitGroup::SplitGroup(DesignerObject *group, const QList<DesignerObject *> &members, UndoCommand *parent)
    : ModelCommand(group ? group->listProperty() : SharedProperty(), true, parent)
{
    auto *element = kindCast<GroupElement>(group);
    const auto isMember = [&](const DesignerObject *member) {
        return member && element && member->listProperty() == element->elements();
    };
    if (!element || !property() || members.isEmpty()
        || !std::all_of(members.begin(), members.end(), isMember)) {
        refuse(Common::LocalizationHelper::coreString(u"These are no members of a group."_s));
        return;
    }
    const QSet<DesignerObject *> wanted(members.cbegin(), members.cend());
    QList<DesignerObject *> ordered = element->elements()->listItems();
    ordered.removeIf([&wanted](DesignerObject *member) { return !wanted.contains(member); });
    if (ordered.size() == 1) {
        setTitle(u"Remove \"%1\" from group \"%2\""_s, ordered.first()->getIdName(), group->getIdName());
    } else {
        setTitle(u"Remove %1 elements from group \"%2\""_s, QString::number(ordered.size()),
                 group->getIdName());
    }
    setupCommands(element, ordered);
}

SplitGroup::SplitGroup(DesignerObject *group, const QStringList &memberNames, UndoCommand *parent)
    : SplitGroup(group, named(group, memberNames), parent)
{ }

QList<DesignerObject *> SplitGroup::named(DesignerObject *group, const QStringList &names)
{
    const auto *element = kindCast<GroupElement>(group);
    QList<DesignerObject *> members;
    for (const QString &name : names) {
        // A name that is none gives null, which is refused.
        members.append(element ? element->elements()->getListItem(name) : nullptr);
    }
    return members;
}

QList<ValueChange> SplitGroup::placeOutside(const DesignerObject *member, const ElementPlacement &group)
{
    QList<ValueChange> changes;
    if (!kindCast<VisualElement>(member)) {
        return changes;
    }
    const ElementPlacement inside = ElementPlacement::of(member);
    const ElementPlacement outside = inside.outOf(group);
    const auto add = [&](QStringView id, const QString &value) {
        const SharedProperty property = member->getProperty(id);
        if (property->valueString() != value) {
            changes.append({property, property->valueString(), value});
        }
    };
    add(u"position", ValueConversion::toString(outside.position));
    if (outside.rotation != inside.rotation) {
        add(u"rotation", ValueConversion::toString(outside.rotation));
    }
    if (outside.scale != inside.scale) {
        add(u"scale", ValueConversion::toString(outside.scale * 100));
    }
    return changes;
}

QList<ValueChange> SplitGroup::placesAround(const GroupElement *group, const QList<DesignerObject *> &leaving,
                                            bool groupGoes)
{
    const ElementPlacement whole = ElementPlacement::of(group);
    QList<ElementPlacement> outside;
    for (const DesignerObject *member : leaving) {
        outside.append(ElementPlacement::of(member).outOf(whole));
    }
    QSet<const DesignerObject *> gone(leaving.cbegin(), leaving.cend());
    QList<const GroupElement *> groups;
    if (groupGoes) {
        gone.insert(group);
    } else {
        groups.append(group);
    }
    const GroupElement *outer = GroupIndexes::groupOf(group->listProperty());
    for (const GroupElement *next = outer; next; next = GroupIndexes::groupOf(next->listProperty())) {
        groups.append(next);
    }
    return placesOf(groups, gone, {{outer, outside}});
}

QList<ValueChange> SplitGroup::placesWithout(const QList<DesignerObject *> &going)
{
    // The groups around them, each behind those that it holds.
    QList<const GroupElement *> groups;
    QSet<const GroupElement *> known;
    bool isTurned = false;
    for (const DesignerObject *object : going) {
        QList<const GroupElement *> around;
        const GroupElement *group = object ? GroupIndexes::groupOf(object->listProperty()) : nullptr;
        for (; group && !known.contains(group); group = GroupIndexes::groupOf(group->listProperty())) {
            isTurned = isTurned || group->getProperty(u"rotation")->valueString() != "0"_L1
                       || group->getProperty(u"scale")->valueString() != "100"_L1;
            known.insert(group);
            around.append(group);
        }
        if (!around.isEmpty()) {
            groups = around + groups;
        }
    }
    return isTurned ? placesOf(groups, {going.cbegin(), going.cend()}) : QList<ValueChange>();
}

void SplitGroup::setupCommands(GroupElement *group, const QList<DesignerObject *> &members)
{
    const SharedProperty list = group->listProperty();
    const ElementPlacement whole = ElementPlacement::of(group);
    qsizetype index = list->getListItemIndex(group);
    QStringList names;
    QSet<QString> below;
    for (DesignerObject *member : members) {
        names.append(member->getIdName());
        below |= ReferenceTarget(member).names();
        addStep<TakeItemStep>(group->elements(), member);
        for (const ValueChange &change : placeOutside(member, whole)) {
            addStep<SetValueStep>(change);
        }
        addStep<InsertItemStep>(list, member, ++index);
    }
    for (const ValueChange &change : placesAround(group, members, false)) {
        addStep<SetValueStep>(change);
    }
    addChanges(ReferenceChanges::ungrouped(group, below, false, pending()));
    addChange(group->indexes(), GroupIndexes::replaced(valueOf(group->indexes()), names, {}));
    if (const GroupElement *outer = GroupIndexes::groupOf(list)) {
        const QString groupName = group->getIdName();
        addChange(outer->indexes(), GroupIndexes::replaced(valueOf(outer->indexes()), {groupName},
                                                           QStringList{groupName} + names));
    }
}

} // namespace Halvane::Corvex::Designer
