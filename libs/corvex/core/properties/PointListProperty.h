// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class PointListProperty : public TypedProperty<QPolygonF>
{
    CORVEX_CLASS_NAMES(PointListProperty, DesignerProperty)

public:
    PointListProperty(DesignerObject *parent, const QString &id, const QString &name,
                      const QPolygonF &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags)
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
