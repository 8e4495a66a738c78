// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT ColorProperty : public TypedProperty<QColor>
{
    CORVEX_CLASS_NAMES(ColorProperty, DesignerProperty)

public:
    ColorProperty(DesignerObject *parent, const QString &id, const QString &name, const QColor &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "ColorEditor")
    { }

    bool validateValue(QString &error) const override;

protected:
    using TypedProperty::TypedProperty;
};

class CORVEX_EXPORT ColorListProperty : public TypedProperty<QList<QColor>>
{
    CORVEX_CLASS_NAMES(ColorListProperty, DesignerProperty)

public:
    ColorListProperty(DesignerObject *parent, const QString &id, const QString &name,
                      const QList<QColor> &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags)
    { }
    //! Starts with that many black colours.
    ColorListProperty(DesignerObject *parent, const QString &id, const QString &name, int count)
        : ColorListProperty(parent, id, name, QList<QColor>(count, QColor(Qt::black)))
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
