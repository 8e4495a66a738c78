// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/RangeInfo.h"

namespace Halvane::Corvex::Designer {

//! Two numbers. The editor parameter "rangeStyle" defines their order: "MinMax" (the minimum must be
//! smaller), "MinMaxEqual" (they may be equal), "MaxMin" and "MaxMinEqual" (the other way round). With any
//! other style, or none, they must only differ.
class CORVEX_EXPORT RangeProperty : public TypedProperty<RangeInfo>
{
    CORVEX_CLASS_NAMES(RangeProperty, DesignerProperty)

public:
    RangeProperty(DesignerObject *parent, const QString &id, const QString &name,
                  const RangeInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "RangeEditor")
    { }

    bool validateValue(QString &error) const override;

protected:
    using TypedProperty::TypedProperty;

    QString formText() const override;
};

} // namespace Halvane::Corvex::Designer
