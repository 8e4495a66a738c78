// SPDX-License-Identifier: MIT
#include "corvex/core/properties/LinkProperty.h"

namespace Halvane::Corvex::Designer {

DesignerObject *LinkProperty::connectLink() const
{
    return value().objectId().isEmpty() ? nullptr : value().findLinks(parentObject(), false).value(0);
}

} // namespace Halvane::Corvex::Designer
