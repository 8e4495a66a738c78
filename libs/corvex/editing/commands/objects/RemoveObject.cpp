// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/RemoveObject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/groups/GroupIndexes.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/project/elements/GroupElement.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

RemoveObject::RemoveObject(const SharedProperty &list, DesignerObject *object, bool selected,
                           UndoCommand *parent)
    : ModelCommand(list, selected, parent)
{
    if (!list || !list->parentObject() || !object || object->listProperty() != list) {
        refuse(Common::LocalizationHelper::coreString(u"There is nothing to remove."_s));
        return;
    }
    setTitle(u"Remove \"%1\" from \"%2\""_s, object->getIdName(), list->parentObject()->getIdName());
    addStep<TakeItemStep>(list, object);
    if (const GroupElement *group = GroupIndexes::groupOf(list)) {
        addChange(group->indexes(),
                  GroupIndexes::replaced(valueOf(group->indexes()), {object->getIdName()}, {}));
    }
    setActiveItem(object);
    setSelection(selected ? QList<DesignerObject *>{object} : QList<DesignerObject *>());
}

} // namespace Halvane::Corvex::Designer
