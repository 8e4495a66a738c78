// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/DeleteObject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/editing/references/ReferenceChanges.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

DeleteObject::DeleteObject(DesignerObject *object, bool selected, UndoCommand *parent)
    : DeleteObject(object, {object}, selected, parent)
{ }

DeleteObject::DeleteObject(DesignerObject *object, const QList<DesignerObject *> &together, bool selected,
                           UndoCommand *parent)
    : ModelCommand(object ? object->listProperty() : SharedProperty(), selected, parent)
{
    if (!object || !object->listProperty()) {
        refuse(Common::LocalizationHelper::coreString(u"There is nothing to delete."_s));
        return;
    }
    makeChangesFirst();
    addChanges(ReferenceChanges::removed(together, pending()));
    addStep<TakeItemStep>(object->listProperty(), object);
    setSelection({}, selected ? QList<DesignerObject *>{object} : QList<DesignerObject *>());
}

DeleteObject::DeleteObject(DesignerObject *object, const QString &className, const QString &title,
                           UndoCommand *parent)
    : DeleteObject(object && object->isKindOfClass(className) ? object : nullptr, false, parent)
{
    if (object) {
        setTitle(title, object->getIdName());
    }
}

} // namespace Halvane::Corvex::Designer
