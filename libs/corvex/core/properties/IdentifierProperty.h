// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/IdentifierInfo.h"

namespace Halvane::Corvex::Designer {

//! An identifier without a name is saved with its scope and its class, and can be read back.
template<>
struct CORVEX_EXPORT EmptyForm<IdentifierInfo>
{
    static std::optional<IdentifierInfo> parse(const QString &text);
};

//! A project has thousands of identifiers, but only a few scopes and classes, whose texts are shared.
template<>
struct TextForm<IdentifierInfo>
{
    static IdentifierInfo parseLike(const QString &text, const IdentifierInfo &current, bool *ok)
    {
        const IdentifierInfo info = IdentifierInfo::fromText(text, current, ok);
        // "name: ;" would be saved as an empty text, and an empty text is read as the name of a new object.
        *ok = *ok && info != IdentifierInfo();
        return info;
    }
    static QString print(const IdentifierInfo &value) { return value.toString(); }
};

//! The property "id" of every object.
class CORVEX_EXPORT IdentifierProperty : public TypedProperty<IdentifierInfo>
{
    CORVEX_CLASS_NAMES(IdentifierProperty, DesignerProperty)

public:
    IdentifierProperty(DesignerObject *parent, const QString &id, const QString &name,
                       const IdentifierInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, StoredFlag, "IdentifierEditor")
    { }

    //! For an object under construction; later names are set through the object.
    void setInitialValue(const IdentifierInfo &info) { setValue(info); }

protected:
    using TypedProperty::TypedProperty;
    QString formText() const override;
};

} // namespace Halvane::Corvex::Designer
