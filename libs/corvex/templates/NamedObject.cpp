// SPDX-License-Identifier: MIT
#include "corvex/templates/NamedObject.h"

#include "corvex/core/DesignerFactory.h"

namespace Halvane::Corvex::Designer {

QString NamedObject::baseName() const
{
    return DesignerFactory::baseNameOf(this);
}

QString NamedObject::displayName() const
{
    return DesignerFactory::displayNameOf(this);
}

} // namespace Halvane::Corvex::Designer
