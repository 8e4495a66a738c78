// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/BorderInfo.h"

namespace Halvane::Corvex::Designer {

//! A border, 0 to 100 pixels wide. It is drawn inside, so in an object with a property "size" it covers at
//! most half of the shorter side.
class CORVEX_EXPORT BorderProperty : public TypedProperty<BorderInfo>
{
    CORVEX_CLASS_NAMES(BorderProperty, DesignerProperty)

public:
    BorderProperty(DesignerObject *parent, const QString &id, const QString &name,
                   const BorderInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "BorderEditor")
    { }

    bool validateValue(QString &error) const override;

protected:
    using TypedProperty::TypedProperty;

    QString formText() const override;
};

} // namespace Halvane::Corvex::Designer
