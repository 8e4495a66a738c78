// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ColorProperties.h"

#include "corvex/core/properties/ValidationError.h"

namespace Halvane::Corvex::Designer {

bool ColorProperty::validateValue(QString &error) const
{
    return value().isValid() || ValidationError::set(error, ValidationError::invalidColor);
}

} // namespace Halvane::Corvex::Designer
