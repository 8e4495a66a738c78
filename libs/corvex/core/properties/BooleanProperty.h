// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class BooleanProperty : public TypedProperty<bool>
{
    CORVEX_CLASS_NAMES(BooleanProperty, DesignerProperty)

public:
    BooleanProperty(DesignerObject *parent, const QString &id, const QString &name, const bool &initialValue)
        : TypedProperty(parent, id, name, initialValue, PropertyFlags(), "BooleanEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
