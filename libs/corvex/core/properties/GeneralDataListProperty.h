// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/GeneralDataList.h"

namespace Halvane::Corvex::Designer {

//! An expression. Those who use it compile it; it writes no QML of its own.
class GeneralDataListProperty : public TypedProperty<GeneralDataList>
{
    CORVEX_CLASS_NAMES(GeneralDataListProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
