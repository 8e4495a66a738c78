// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/FieldbusErrorInfo.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT ReceiveErrorProperty : public TypedProperty<ReceiveErrorInfo>
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

class CORVEX_EXPORT SendErrorProperty : public TypedProperty<SendErrorInfo>
{
    CORVEX_CLASS_NAMES(SendErrorProperty, DesignerProperty)

public:
    SendErrorProperty(DesignerObject *parent, const QString &id, const QString &name,
                      const SendErrorInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "ErrorFlagsEditor")
    { }

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
