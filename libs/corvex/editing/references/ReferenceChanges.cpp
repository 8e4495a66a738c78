// SPDX-License-Identifier: MIT
#include "corvex/editing/references/ReferenceChanges.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/editing/references/ReferenceForm.h"
#include "corvex/editing/references/ReferenceIndex.h"
#include "corvex/values/text/ObjectPath.h"

namespace Halvane::Corvex::Designer {

namespace {

bool isBelow(const DesignerObject *object, const QSet<const DesignerObject *> &roots)
{
    while (object && !roots.contains(object)) {
        object = object->ownerObject();
    }
    return object;
}

void rename(Mention &mention, const QString &oldName, const QString &newName)
{
    if (!mention.kinds.testFlag(NamedKind::Element)) {
        mention.path = newName;
    } else {
        ObjectPath::replace(mention.path, oldName, newName);
    }
}

//! Removes "group1." from "group1.pump1" if pump1 is a member. \return whether the path refers to the group
//! itself.
bool stripGroup(QString &path, const QString &group, const QSet<QString> &members)
{
    QStringList kept;
    const QStringList segments = path.split(u'.');
    bool isGroupMeant = false;
    for (qsizetype i = 0; i < segments.size(); ++i) {
        if (segments.at(i) != group) {
            kept.append(segments.at(i));
        } else if (!members.contains(segments.value(i + 1))) {
            kept.append(group);
            isGroupMeant = true;
        }
    }
    path = kept.join(u'.');
    return isGroupMeant;
}

} // namespace

QList<ValueChange> ReferenceChanges::rewritten(const ReferenceTarget &target, const Rewriter &rewriter,
                                               const PendingValues *pending)
{
    QList<ValueChange> changes;
    if (!target.isValid()) {
        return changes;
    }
    for (const SharedProperty &property : ReferenceIndex::of(target.project()).candidates(target)) {
        const DesignerObject *owner = property->parentObject();
        const auto known = pending ? pending->constFind(property.data()) : PendingValues::const_iterator();
        const QString before = pending && known != pending->constEnd() ? *known : property->valueString();
        QString after = before;
        const auto visitor = [&](Mention &mention) {
            if (target.isMeantBy(mention, owner)) {
                rewriter(mention, owner);
            }
        };
        if (ReferenceForm::visit(*property, after, visitor)) {
            changes.append({property, before, after});
        }
    }
    return changes;
}

QList<ValueChange> ReferenceChanges::renamed(const DesignerObject *object, const QString &newName,
                                             const PendingValues *pending)
{
    const QString oldName = object ? object->getIdName() : QString();
    if (oldName.isEmpty() || newName.isEmpty() || oldName == newName) {
        return {};
    }
    return rewritten(
        ReferenceTarget::toItself(object),
        [&](Mention &mention, const DesignerObject *) { rename(mention, oldName, newName); }, pending);
}

QList<ValueChange> ReferenceChanges::removed(const QList<DesignerObject *> &objects,
                                             const PendingValues *pending)
{
    ReferenceTarget target;
    QSet<const DesignerObject *> going;
    for (const DesignerObject *object : objects) {
        going.insert(object);
        target.add(ReferenceTarget(object));
    }
    return rewritten(
        target,
        [&](Mention &mention, const DesignerObject *owner) { mention.isDropped = !isBelow(owner, going); },
        pending);
}

QList<ValueChange> ReferenceChanges::ungrouped(const DesignerObject *group, const QSet<QString> &members,
                                               bool groupGoes, const PendingValues *pending)
{
    const QString name = group->getIdName();
    return rewritten(
        ReferenceTarget::toItself(group),
        [&](Mention &mention, const DesignerObject *owner) {
            mention.isDropped = stripGroup(mention.path, name, members) && groupGoes && owner != group;
        },
        pending);
}

} // namespace Halvane::Corvex::Designer
