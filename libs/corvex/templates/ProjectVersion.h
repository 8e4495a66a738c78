// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/templates/NamedObject.h"

namespace Halvane::Corvex::Designer {

//! An entry in the log of a project's versions.
class CORVEX_EXPORT ProjectVersion : public NamedObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ProjectVersion, DesignerObject)

protected:
    using NamedObject::NamedObject;
};

} // namespace Halvane::Corvex::Designer
