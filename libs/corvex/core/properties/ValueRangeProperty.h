// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/ValueRangeInfo.h"

#include <optional>

namespace Halvane::Corvex::Designer {

/*! The voltages between which an element works, from value1 to value2 within limits.

    The element reads an analog input, named by its link "analogInput", which has a "voltageRange" (the text
    of a RangeInfo or of a ValueRangeInfo); the element may have a "voltageRange" itself instead.
*/
class CORVEX_EXPORT ValueRangeProperty : public TypedProperty<ValueRangeInfo>
{
    CORVEX_CLASS_NAMES(ValueRangeProperty, DesignerProperty)

public:
    //! Turns volts into 0 at the first value and 1 at the second: volts * factor + offset.
    struct Scaling
    {
        double factor = 0;
        double offset = 0;
    };

    ValueRangeProperty(DesignerObject *parent, const QString &id, const QString &name,
                       const ValueRangeInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "ValueRangeEditor")
    { }

    /*! The scaling between the two values of \a range, both taken as far as the input of \a owner reaches.
        Its factor is 0 when they are less than a thousandth of the voltage range apart, which no input can
        tell. None when \a owner knows no voltage range. */
    static std::optional<Scaling> scaling(const ValueRangeInfo &range, const DesignerObject *owner);

    bool validateValue(QString &error) const override;

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
