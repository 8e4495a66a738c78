// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/PropertyChangeInfo.h"

namespace Halvane::Corvex::Designer {

class PropertyChangeProperty : public TypedProperty<PropertyChangeInfo>
{
    CORVEX_CLASS_NAMES(PropertyChangeProperty, DesignerProperty)

public:
    PropertyChangeProperty(DesignerObject *parent, const QString &id, const QString &name,
                           const PropertyChangeInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, StoredFlag)
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
