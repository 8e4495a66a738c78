// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/ConditionInfo.h"

namespace Halvane::Corvex::Designer {

//! Two comparisons of a value; in QML the function that makes them.
class ConditionProperty : public TypedProperty<ConditionInfo>
{
    CORVEX_CLASS_NAMES(ConditionProperty, DesignerProperty)

public:
    ConditionProperty(DesignerObject *parent, const QString &id, const QString &name,
                      const ConditionInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "ConditionEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
