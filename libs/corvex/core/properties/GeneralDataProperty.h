// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/GeneralDataInfo.h"

namespace Halvane::Corvex::Designer {

//! One term of an expression. Those who use it compile it; it writes no QML of its own.
class GeneralDataProperty : public TypedProperty<GeneralDataInfo>
{
    CORVEX_CLASS_NAMES(GeneralDataProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
