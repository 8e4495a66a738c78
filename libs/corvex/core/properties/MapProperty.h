// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/MapInfo.h"

namespace Halvane::Corvex::Designer {

class MapProperty : public TypedProperty<MapInfo>
{
    CORVEX_CLASS_NAMES(MapProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
