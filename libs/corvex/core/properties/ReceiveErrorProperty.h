// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/ReceiveErrorInfo.h"

namespace Halvane::Corvex::Designer {

class ReceiveErrorProperty : public TypedProperty<ReceiveErrorInfo>
{
    CORVEX_CLASS_NAMES(ReceiveErrorProperty, DesignerProperty)

public:
    ReceiveErrorProperty(DesignerObject *parent, const QString &id, const QString &name,
                         const ReceiveErrorInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "ErrorFlagsEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
