// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/FieldbusErrorInfo.h"

namespace Halvane::Corvex::Designer {

template<>
struct CORVEX_EXPORT TextForm<IOErrorInfo>
{
    static IOErrorInfo parse(const QString &text, bool *ok);
    static QString print(const IOErrorInfo &info);
};

//! Defines the text form of the record, which has none itself: "id: true, io: false".
class CORVEX_EXPORT IOErrorProperty : public TypedProperty<IOErrorInfo>
{
    CORVEX_CLASS_NAMES(IOErrorProperty, DesignerProperty)

public:
    IOErrorProperty(DesignerObject *parent, const QString &id, const QString &name,
                    const IOErrorInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "IOErrorFlagsEditor")
    { }

    static QString toString(const IOErrorInfo &info);
    static IOErrorInfo fromString(const QString &text, bool *ok = nullptr);

    bool validateValue(QString &error) const override;

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
