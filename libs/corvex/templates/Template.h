// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/templates/NamedObject.h"

namespace Halvane::Corvex::Designer {

//! A ready-made starting point for the user.
class CORVEX_EXPORT Template : public NamedObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Template, DesignerObject)

protected:
    using NamedObject::NamedObject;
};

} // namespace Halvane::Corvex::Designer
