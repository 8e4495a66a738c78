// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class PolygonListProperty : public TypedProperty<QList<QPolygonF>>
{
    CORVEX_CLASS_NAMES(PolygonListProperty, DesignerProperty)

public:
    PolygonListProperty(DesignerObject *parent, const QString &id, const QString &name,
                        const QList<QPolygonF> &initialValue)
        : TypedProperty(parent, id, name, initialValue, PropertyFlags(StoredFlag) | RuntimeFlag)
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
