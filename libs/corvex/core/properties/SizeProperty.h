// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

//! Valid unless a side is negative.
class SizeProperty : public TypedProperty<QSizeF>
{
    CORVEX_CLASS_NAMES(SizeProperty, DesignerProperty)

public:
    SizeProperty(DesignerObject *parent, const QString &id, const QString &name, const QSizeF &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "SizeEditor")
    { }

    bool validateValue(QString &error) const override;

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
