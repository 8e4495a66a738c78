// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/EnumInfo.h"

namespace Halvane::Corvex::Designer {

template<>
struct TextForm<EnumInfo>
{
    static EnumInfo parse(const QString &text, const EnumInfo &current, bool *ok)
    {
        return {current.enumerator(), text, ok};
    }
    static QString print(const EnumInfo &value) { return value.valueString(); }
};

//! A value of an enumeration, which is that of the initial value. Its text is the key of the value.
class CORVEX_EXPORT EnumProperty : public TypedProperty<EnumInfo>
{
    CORVEX_CLASS_NAMES(EnumProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;

    const EnumInfo &getEnumInfo() const { return value(); }

    bool validateValue(QString &error) const override;
    QString formText() const override;
};

} // namespace Halvane::Corvex::Designer
