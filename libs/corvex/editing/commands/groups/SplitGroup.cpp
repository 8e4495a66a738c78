// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/groups/SplitGroup.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/groups/GroupIndexes.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/editing/commands/private/ElementPlacement.h"
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/text/ValueConversion.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

SplitGroup::SplitGroup(DesignerObject *group, const QList<DesignerObject *> &members, UndoCommand *parent)
    : ModelCommand(group ? group->listProperty() : SharedProperty(), true, parent)
{
    auto *element = kindCast<GroupElement>(group);
    const auto isMember = [&](const DesignerObject *member) {
        return member && element && member->listProperty() == element->elements();
    };
    if (!element || !property() || members.isEmpty()
        || !std::all_of(members.begin(), members.end(), isMember)) {
        refuse(Common::LocalizationHelper::coreString(u"These are not members of a group."_s));
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
    setSelection(ordered);
}

SplitGroup::SplitGroup(DesignerObject *group, const QStringList &memberNames, UndoCommand *parent)
    : SplitGroup(group, named(group, memberNames), parent)
{ }

QList<DesignerObject *> SplitGroup::named(DesignerObject *group, const QStringList &names)
{
    const auto *element = kindCast<GroupElement>(group);
    QList<DesignerObject *> members;
    for (const QString &name : names) {
        // An invalid name gives null, which is refused.
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
    addChanges(ReferenceChanges::ungrouped(group, below, false, pending()));
    addChange(group->indexes(), GroupIndexes::replaced(valueOf(group->indexes()), names, {}));
    if (const GroupElement *outer = GroupIndexes::groupOf(list)) {
        const QString groupName = group->getIdName();
        addChange(outer->indexes(), GroupIndexes::replaced(valueOf(outer->indexes()), {groupName},
                                                           QStringList{groupName} + names));
    }
}

} // namespace Halvane::Corvex::Designer
