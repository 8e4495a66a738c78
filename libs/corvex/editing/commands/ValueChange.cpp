// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/ValueChange.h"

#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

bool ValueChange::set(const SharedProperty &property, const QString &value)
{
    DesignerObject *owner = property ? property->parentObject() : nullptr;
    if (!owner) {
        return false;
    }
    const DesignerObject::Change change = owner->changeValue(property, value);
    return change == DesignerObject::Change::Done || change == DesignerObject::Change::Unchanged;
}

} // namespace Halvane::Corvex::Designer
