// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class IntegerProperty : public TypedProperty<int>
{
    CORVEX_CLASS_NAMES(IntegerProperty, DesignerProperty)

public:
    IntegerProperty(DesignerObject *parent, const QString &id, const QString &name, const int &initialValue)
        : TypedProperty(parent, id, name, initialValue, PropertyFlags(), "IntegerEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
