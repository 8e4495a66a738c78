// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

//! Compared exactly; its text and its QML are rounded.
class RealProperty : public TypedProperty<double>
{
    CORVEX_CLASS_NAMES(RealProperty, DesignerProperty)

public:
    RealProperty(DesignerObject *parent, const QString &id, const QString &name, const double &initialValue)
        : TypedProperty(parent, id, name, initialValue, PropertyFlags(), "RealEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
