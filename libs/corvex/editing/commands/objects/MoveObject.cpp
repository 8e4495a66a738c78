// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/MoveObject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/groups/GroupIndexes.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/editing/commands/private/ListOrder.h"
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/GroupElement.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

const Screen *screenOf(const SharedProperty &list)
{
    const auto *screen = kindCast<Screen>(list->parentObject());
    return screen ? screen : list->parentObject()->screen();
}

//! Objects cannot move to another project, because references and files would not follow.
const Project *projectOf(const SharedProperty &list)
{
    const auto *project = kindCast<Project>(list->parentObject());
    return project ? project : list->parentObject()->project();
}

} // namespace

MoveObject::MoveObject(const SharedProperty &from, const SharedProperty &to, DesignerObject *object,
                       bool selected, UndoCommand *parent)
    : ModelCommand(from, selected, parent)
{
    setupCommand(from == to ? SharedProperty() : to, object, -1);
}

MoveObject::MoveObject(const SharedProperty &from, const SharedProperty &to, DesignerObject *object,
                       qsizetype index, bool selected, UndoCommand *parent)
    : ModelCommand(from, selected, parent)
{
    setupCommand(to, object, index);
}

void MoveObject::setupCommand(const SharedProperty &to, DesignerObject *object, qsizetype index)
{
    const SharedProperty &from = property();
    if (!from || !to || !to->parentObject() || !to->isList() || !object || object->listProperty() != from
        || projectOf(from) != projectOf(to)) {
        refuse(
            Common::LocalizationHelper::coreString(u"There is nothing to move, or no list to move it to."_s));
        return;
    }
    const QString name = object->getIdName();
    if (from == to && !ListOrder::isFree(*to, *object)) {
        refuse(Common::LocalizationHelper::coreString(
                   u"\"%1\" cannot be moved within its list, which sorts objects of this kind by name."_s)
                   .arg(name));
        return;
    }
    setTitle(u"Move\"%1\" to \"%2\""_s, name, to->parentObject()->getIdName());
    addStep<TakeItemStep>(from, object);
    addStep<InsertItemStep>(to, object, index);
    if (from != to) {
        followReferences(to, object);
    }
    setSelection(isSelected() ? QList<DesignerObject *>{object} : QList<DesignerObject *>());
}

void MoveObject::followReferences(const SharedProperty &to, DesignerObject *object)
{
    const SharedProperty &from = property();
    const QString name = object->getIdName();
    const GroupElement *oldGroup = GroupIndexes::groupOf(from);
    if (screenOf(from) != screenOf(to)) {
        // Also removes it from the indexes of its group.
        addChanges(ReferenceChanges::removed({object}, pending()));
    } else if (oldGroup) {
        addChanges(ReferenceChanges::ungrouped(oldGroup, ReferenceTarget(object).names(), false, pending()));
        addChange(oldGroup->indexes(), GroupIndexes::replaced(valueOf(oldGroup->indexes()), {name}, {}));
    }
    if (const GroupElement *group = GroupIndexes::groupOf(to)) {
        addChange(group->indexes(), GroupIndexes::replaced(valueOf(group->indexes()), {}, {name}));
    }
}

} // namespace Halvane::Corvex::Designer
