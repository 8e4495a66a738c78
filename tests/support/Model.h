// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

//! Creates an object of a class of the factory. The caller owns it.
template<class Object = DesignerObject>
Object *make(const QString &className, const QString &name)
{
    DesignerObject *object = DesignerFactory::instance()->createObject(className);
    object->setParent(nullptr);
    object->setIdName(name);
    return static_cast<Object *>(object);
}

} // namespace Halvane::Corvex::Designer
