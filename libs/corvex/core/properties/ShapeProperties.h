// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT PointProperty : public TypedProperty<QPointF>
{
    CORVEX_CLASS_NAMES(PointProperty, DesignerProperty)

public:
    PointProperty(DesignerObject *parent, const QString &id, const QString &name, const QPointF &initialValue)
        : TypedProperty(parent, id, name, initialValue, StoredFlag, "PointEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

//! Valid unless a side is negative.
class CORVEX_EXPORT SizeProperty : public TypedProperty<QSizeF>
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

class CORVEX_EXPORT PointListProperty : public TypedProperty<QPolygonF>
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

class CORVEX_EXPORT PolygonListProperty : public TypedProperty<QList<QPolygonF>>
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
