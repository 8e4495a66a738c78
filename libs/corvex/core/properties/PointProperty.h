// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class PointProperty : public TypedProperty<QPointF>
{
    CORVEX_CLASS_NAMES(PointProperty, DesignerProperty)

public:
    PointProperty(DesignerObject *parent, const QString &id, const QString &name, const QPointF &initialValue)
        : TypedProperty(parent, id, name, initialValue, StoredFlag, "PointEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
