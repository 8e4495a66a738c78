// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/groups/GroupCommand.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/editing/commands/groups/GroupIndexes.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/editing/commands/private/ElementPlacement.h"
#include "corvex/editing/commands/private/ObjectSelection.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

SharedProperty listOf(const QList<DesignerObject *> &members)
{
    return members.isEmpty() || !members.first() ? SharedProperty() : members.first()->listProperty();
}

//! The members in list order, without duplicates. Nothing if one of them is not in the list.
QList<DesignerObject *> inOrder(const QList<DesignerObject *> &members, const SharedProperty &list)
{
    const bool areThere = list && std::ranges::all_of(members, [&list](const DesignerObject *member) {
                              return member && member->listProperty() == list;
                          });
    return areThere ? ObjectSelection::inListOrder(members) : QList<DesignerObject *>();
}

} // namespace

GroupCommand::GroupCommand(const SharedProperty &elements, GroupElement *group,
                           const QList<DesignerObject *> &members, UndoCommand *parent)
    : ModelCommand(elements, true, parent)
{
    const QList<DesignerObject *> ordered = inOrder(members, elements);
    if (!group || group->listProperty() || ordered.size() < 2) {
        refuse(Common::LocalizationHelper::coreString(u"At least two elements are required."_s), {group});
        return;
    }
    setTitle(u"Group Elements \"%1\""_s, group->getIdName());
    setupCommand(elements, group, ordered);
    setSelection({group}, ordered);
}

GroupCommand::GroupCommand(DesignerObject *group, const QList<DesignerObject *> &members, UndoCommand *parent)
    : GroupCommand(listOf(members), kindCast<GroupElement>(group), members, parent)
{ }

void GroupCommand::setupCommand(const SharedProperty &list, GroupElement *group,
                                const QList<DesignerObject *> &members)
{
    QRectF bounds;
    QStringList names;
    for (DesignerObject *member : members) {
        if (kindCast<VisualElement>(member)) {
            bounds |= ElementPlacement::of(member).actualBoundingRect();
        }
        names.append(member->getIdName());
    }
    const qsizetype top = list->getListItemIndex(members.constLast()) - (members.size() - 1);
    for (DesignerObject *member : members) {
        addStep<TakeItemStep>(list, member);
        if (kindCast<VisualElement>(member)) {
            addValueStep(member->getProperty(u"position"),
                         ValueConversion::toString(ElementPlacement::of(member).position - bounds.topLeft()));
        }
        addStep<InsertItemStep>(group->elements(), member);
    }
    addValueStep(group->getProperty(u"position"), ValueConversion::toString(bounds.topLeft()));
    addValueStep(group->indexes(), ListInfo(names).toString());
    addStep<InsertItemStep>(list, group, top);
    if (const GroupElement *outer = GroupIndexes::groupOf(list)) {
        addChange(outer->indexes(),
                  GroupIndexes::replaced(valueOf(outer->indexes()), names, {group->getIdName()}));
    }
}

QRectF GroupCommand::actualBoundingRect(const QPointF &position, const QSizeF &size, double rotation,
                                        const QString &transformOrigin)
{
    return ElementPlacement{position, size, rotation, transformOrigin}.actualBoundingRect();
}

} // namespace Halvane::Corvex::Designer
