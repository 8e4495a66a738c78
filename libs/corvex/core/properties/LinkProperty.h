// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/ObjectLinkInfo.h"

namespace Halvane::Corvex::Designer {

//! A reference to another object by its identifier name.
class LinkProperty : public TypedProperty<ObjectLinkInfo>
{
    CORVEX_CLASS_NAMES(LinkProperty, DesignerProperty)

public:
    LinkProperty(DesignerObject *parent, const QString &id, const QString &name,
                 const ObjectLinkInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, PropertyFlags(StoredFlag) | EditableFlag | StateFlag,
                        "LinkEditor")
    { }

    //! The object that the link names, as seen from the owner of the property; null when there is none.
    DesignerObject *connectLink() const;

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
