// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/ValueChange.h"

#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

bool ValueChange::set(const SharedProperty &property, const QString &value)
{
    DesignerObject *owner = property ? property->parentObject() : nullptr;
    if (!owner || !owner->changePropertyValue(property, value)) {
        return false;
    }
    // It may hold the value in another spelling. A text that is no value counts as equal to any.
    return property->valueString() == value || (property->equalsValue(value) && property->canRead(value));
}

} // namespace Halvane::Corvex::Designer
