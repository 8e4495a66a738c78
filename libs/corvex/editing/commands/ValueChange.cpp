// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/ValueChange.h"

#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

namespace {

//! Asks a property what it keeps for those that derive from it.
class PropertyTrial : public DesignerProperty
{
public:
    //! Whether the text stands for a value at all.
    static bool canRead(DesignerProperty &property, const QString &text)
    {
        bool isGood = false;
        const bool isRead = (property.*&PropertyTrial::tryValue)(text, isGood);
        property.validate(); // The trial has judged the other value.
        return isRead;
    }
};

} // namespace

bool ValueChange::set(const SharedProperty &property, const QString &value)
{
    DesignerObject *owner = property ? property->parentObject() : nullptr;
    if (!owner || !owner->changePropertyValue(property, value)) {
        return false;
    }
    // It may hold the value in another spelling. A text that is no value counts as equal to any.
    return property->valueString() == value || (property->equalsValue(value) && PropertyTrial::canRead(*property, value));
}

} // namespace Halvane::Corvex::Designer
