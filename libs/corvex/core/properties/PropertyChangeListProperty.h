// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/PropertyList.h"

namespace Halvane::Corvex::Designer {

class PropertyChangeListProperty : public TypedProperty<PropertyList>
{
    CORVEX_CLASS_NAMES(PropertyChangeListProperty, DesignerProperty)

public:
    PropertyChangeListProperty(DesignerObject *parent, const QString &id, const QString &name,
                               const PropertyList &initialValue)
        : TypedProperty(parent, id, name, initialValue, StoredFlag)
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
