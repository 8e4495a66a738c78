// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/groups/UngroupCommand.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/editing/commands/groups/GroupIndexes.h"
#include "corvex/editing/commands/groups/SplitGroup.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/editing/commands/private/ElementPlacement.h"
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/project/elements/GroupElement.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

UngroupCommand::UngroupCommand(DesignerObject *group, UndoCommand *parent)
    : ModelCommand(group ? group->listProperty() : SharedProperty(), true, parent)
{
    const auto *element = kindCast<GroupElement>(group);
    const SharedProperty list = property();
    if (!element || !list) {
        refuse(Common::LocalizationHelper::coreString(u"There is no group to ungroup."_s));
        return;
    }
    if (element->elements()->itemList()->hasKeptItems()) {
        refuse(Common::LocalizationHelper::coreString(
            u"The group contains elements whose plug-in is missing. They would be lost."_s));
        return;
    }
    const QString name = group->getIdName();
    setTitle(u"Ungroup \"%1\""_s, name);
    const GroupElement *outer = GroupIndexes::groupOf(list);
    const QStringList members = element->elements()->listItemNames();
    const QStringList below = element->childrenNames();
    QList<ValueChange> changes =
        ReferenceChanges::ungrouped(group, QSet<QString>(below.cbegin(), below.cend()), true, pending());
    if (outer) {
        // The members replace the group in the order of the outer group.
        changes.removeIf([outer](const ValueChange &change) { return change.property == outer->indexes(); });
    }
    addChanges(changes);
    if (outer) {
        addChange(outer->indexes(), GroupIndexes::replaced(valueOf(outer->indexes()), {name}, members));
    }
    const ElementPlacement whole = ElementPlacement::of(element);
    qsizetype index = list->getListItemIndex(group);
    addStep<TakeItemStep>(list, group);
    for (DesignerObject *member : element->elements()->listItems()) {
        addStep<TakeItemStep>(element->elements(), member);
        for (const ValueChange &change : SplitGroup::placeOutside(member, whole)) {
            addStep<SetValueStep>(change);
        }
        addStep<InsertItemStep>(list, member, index++);
    }
    setSelection(element->elements()->listItems(), {group});
}

} // namespace Halvane::Corvex::Designer
