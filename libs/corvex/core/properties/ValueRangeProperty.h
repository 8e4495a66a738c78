// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/ValueRangeInfo.h"

#include <optional>

namespace Halvane::Corvex::Designer {

/*! The voltage range of an element, from value1 to value2 within limits.

    The element reads the analog input that its link "analogInput" names. The input has a "voltageRange" (the
    text of a RangeInfo or a ValueRangeInfo). Alternatively, the element itself has a "voltageRange".
*/
class CORVEX_EXPORT ValueRangeProperty : public TypedProperty<ValueRangeInfo>
{
    CORVEX_CLASS_NAMES(ValueRangeProperty, DesignerProperty)

public:
    //! Maps volts to 0 at the first value and 1 at the second: volts * factor + offset.
    struct Scaling
    {
        double factor = 0;
        double offset = 0;
    };

    ValueRangeProperty(DesignerObject *parent, const QString &id, const QString &name,
                       const ValueRangeInfo &initialValue)
        : TypedProperty(parent, id, name, initialValue, OrdinaryFlags, "ValueRangeEditor")
    { }

    //! The scaling between the two values of \a range, limited to the voltages of the input of \a owner. Its
    //! factor is 0 if they differ by less than a thousandth of the voltage range, which no input can resolve.
    //! Nothing if \a owner has no voltage range.
    static std::optional<Scaling> scaling(const ValueRangeInfo &range, const DesignerObject *owner);

    bool validateValue(QString &error) const override;

protected:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
