// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

//! The stops of a gradient: 2 to 101, at most one for each hundredth, in at least two colours.
class CORVEX_EXPORT GradientStopsProperty : public TypedProperty<QGradientStops>
{
    CORVEX_CLASS_NAMES(GradientStopsProperty, DesignerProperty)

public:
    GradientStopsProperty(DesignerObject *parent, const QString &id, const QString &name,
                          const QGradientStops &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "GradientStopsEditor")
    { }

    //! From white to black.
    static QGradientStops initValue();

    bool validateValue(QString &error) const override;

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
