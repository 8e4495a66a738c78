// SPDX-License-Identifier: MIT
#include "corvex/core/properties/EnumProperty.h"

#include "corvex/core/properties/ValidationError.h"

namespace Halvane::Corvex::Designer {

bool EnumProperty::validateValue(QString &error) const
{
    return value().isValid() || ValidationError::set(error, "The enumeration value is invalid.");
}

} // namespace Halvane::Corvex::Designer
