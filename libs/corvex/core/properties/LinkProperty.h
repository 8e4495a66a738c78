// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/ObjectLinkInfo.h"

namespace Halvane::Corvex::Designer {

template<>
inline constexpr Form ReferencesIn<ObjectLinkInfo> = Form::Link;

//! A reference to another object by its identifier name.
class CORVEX_EXPORT LinkProperty : public TypedProperty<ObjectLinkInfo>
{
    CORVEX_CLASS_NAMES(LinkProperty, DesignerProperty)

public:
    LinkProperty(DesignerObject *parent, const QString &id, const QString &name,
                 const ObjectLinkInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, PropertyFlags(StoredFlag) | EditableFlag | StateFlag,
                        "LinkEditor")
    { }

    //! The link with the scope and the classes from the editor parameters "scopeType" and "filterType"; where
    //! these are missing, the stored link defines them itself.
    ObjectLinkInfo checked(const ObjectLinkInfo &link) const;

    //! The object that the checked link names, seen from the owner of the property; null if it does not
    //! exist.
    DesignerObject *connectLink() const;
    //! The same as an object of that class; null if it is of another one.
    template<class Object>
    Object *connectLinkTo() const
    {
        return kindCast<Object>(connectLink());
    }
    //! The object with that name in the scope of the link, of any class.
    DesignerObject *namesake() const;

    QmlBindings convertToBindings() const override;
    //! Whether the object of that name, if there is one, is of a class that the property asks for.
    bool validateValue(QString &error) const override;

protected:
    using TypedProperty::TypedProperty;
    //! Names the classes of the target.
    QString formText() const override;
};

} // namespace Halvane::Corvex::Designer
