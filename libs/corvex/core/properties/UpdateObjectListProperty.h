// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/UpdateObjectList.h"

namespace Halvane::Corvex::Designer {

class UpdateObjectListProperty : public TypedProperty<UpdateObjectList>
{
    CORVEX_CLASS_NAMES(UpdateObjectListProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
