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
                 const ObjectLinkInfo &initialValue);

    //! The object that the link names, as seen from the owner of the property; null when there is none.
    DesignerObject *connectLink() const;

protected:
    using TypedProperty::TypedProperty;
    QString convertToQml(int indent) const override;
};

} // namespace Halvane::Corvex::Designer
