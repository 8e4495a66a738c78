// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"

namespace Halvane::Corvex::Designer {

class StringProperty : public TypedProperty<QString>
{
    CORVEX_CLASS_NAMES(StringProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
