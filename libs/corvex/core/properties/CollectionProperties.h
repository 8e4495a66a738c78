// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/properties/TypedProperty.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/MapInfo.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT ListValueProperty : public TypedProperty<ListInfo>
{
    CORVEX_CLASS_NAMES(ListValueProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

class CORVEX_EXPORT MapProperty : public TypedProperty<MapInfo>
{
    CORVEX_CLASS_NAMES(MapProperty, DesignerProperty)

public:
    using TypedProperty::TypedProperty;
};

} // namespace Halvane::Corvex::Designer
