// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/groups/GroupPlaces.h"

#include "corvex/editing/commands/groups/GroupIndexes.h"
#include "corvex/editing/commands/private/ElementPlacement.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/text/ValueConversion.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QList<const GroupElement *> groupsFrom(const GroupElement *innermost)
{
    QList<const GroupElement *> groups;
    for (const GroupElement *group = innermost; group; group = GroupIndexes::groupOf(group->listProperty())) {
        groups.append(group);
    }
    return groups;
}

bool isGroup(const DesignerObject *object)
{
    return kindCast<GroupElement>(object);
}

bool isTurned(const GroupElement *group)
{
    return group->getProperty(u"rotation")->valueString() != "0"_L1
           || group->getProperty(u"scale")->valueString() != "100"_L1;
}

} // namespace

bool GroupPlaces::concerns(const SharedProperty &property)
{
    if (!property || !property->parentObject()) {
        return false;
    }
    const DesignerObject *owner = property->parentObject();
    return property->isList() ? isGroup(owner)
                              : (property->id() == "position"_L1 || property->id() == "size"_L1)
                                    && (isGroup(owner) || GroupIndexes::groupOf(owner->listProperty()));
}

bool GroupPlaces::note(const SharedProperty &property)
{
    const DesignerObject *owner = property->parentObject();
    if (property->isList()) {
        return watch(GroupIndexes::groupOf(property));
    }
    if (property->id() == "position"_L1 && isGroup(owner)) {
        m_placed.insert(owner);
    }
    return watch(GroupIndexes::groupOf(owner->listProperty()));
}

bool GroupPlaces::watch(const GroupElement *group)
{
    // A group that is in no list has no position on the screen yet.
    if (!group || !group->listProperty()) {
        return false;
    }
    const QList<const GroupElement *> groups = groupsFrom(group);
    if (std::none_of(groups.begin(), groups.end(), isTurned)) {
        return false;
    }
    for (qsizetype i = 0; i < groups.size() && !m_watched.contains(groups.at(i)); ++i) {
        m_watched.insert(groups.at(i));
        m_groups.push_back({const_cast<GroupElement *>(groups.at(i)), int(groups.size() - i - 1),
                            ElementPlacement::of(groups.at(i)).size});
    }
    return true;
}

QList<ValueChange> GroupPlaces::settle()
{
    // Inner groups first, because their positions affect the bounds of the outer ones.
    std::ranges::stable_sort(m_groups, std::ranges::greater(), &Group::depth);
    QList<ValueChange> changes;
    for (const auto &[group, depth, size] : m_groups) {
        if (!group || !group->listProperty() || m_placed.contains(group)) {
            continue;
        }
        const SharedProperty position = group->getProperty(u"position");
        const QString text = ValueConversion::toString(ElementPlacement::of(group).positionAfterSize(size));
        const ValueChange change{position, position->valueString(), text};
        if (!position->equalsValue(text) && change.redo()) {
            changes.append(change);
        }
    }
    return changes;
}

} // namespace Halvane::Corvex::Designer
