// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/templates/NamedObject.h"

namespace Halvane::Corvex::Designer {

//! The templates of one kind.
class CORVEX_EXPORT TemplateContainer : public NamedObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(TemplateContainer, DesignerObject)

protected:
    using NamedObject::NamedObject;
};

} // namespace Halvane::Corvex::Designer
