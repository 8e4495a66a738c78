// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/ValueChange.h"

#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

bool ValueChange::set(const SharedProperty &property, const QString &value)
{
    DesignerObject *owner = property ? property->parentObject() : nullptr;
    return owner && owner->changePropertyValue(property, value) && property->equalsValue(value);
}

} // namespace Halvane::Corvex::Designer
