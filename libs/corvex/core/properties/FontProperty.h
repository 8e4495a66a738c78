// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT FontProperty : public TypedProperty<QFont>
{
    CORVEX_CLASS_NAMES(FontProperty, DesignerProperty)

public:
    FontProperty(DesignerObject *parent, const QString &id, const QString &name, const QFont &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "FontEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
