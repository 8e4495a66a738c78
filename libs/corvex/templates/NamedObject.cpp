// SPDX-License-Identifier: MIT
#include "corvex/templates/NamedObject.h"

#include "corvex/core/DesignerFactory.h"

namespace Halvane::Corvex::Designer {

QString NamedObject::baseName() const
{
    const DesignerFactory *factory = DesignerFactory::instance();
    const QString name = factory ? factory->baseNameForClass(className()) : QString();
    return name.isEmpty() ? className() : name;
}

QString NamedObject::displayName() const
{
    const DesignerFactory *factory = DesignerFactory::instance();
    const QString name = factory ? factory->displayNameForClass(className()) : QString();
    return name.isEmpty() ? className() : name;
}

} // namespace Halvane::Corvex::Designer
