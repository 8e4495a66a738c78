// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ShapeProperties.h"

#include "corvex/core/properties/ValidationError.h"

namespace Halvane::Corvex::Designer {

bool SizeProperty::validateValue(QString &error) const
{
    return value().isValid() || ValidationError::set(error, "The size is invalid.");
}

} // namespace Halvane::Corvex::Designer
