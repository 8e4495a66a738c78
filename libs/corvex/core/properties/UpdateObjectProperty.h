// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/UpdateObjectInfo.h"

namespace Halvane::Corvex::Designer {

class UpdateObjectProperty : public TypedProperty<UpdateObjectInfo>
{
    CORVEX_CLASS_NAMES(UpdateObjectProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
