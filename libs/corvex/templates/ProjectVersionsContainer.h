// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/templates/NamedObject.h"

namespace Halvane::Corvex::Designer {

//! The log of a project's versions.
class CORVEX_EXPORT ProjectVersionsContainer : public NamedObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ProjectVersionsContainer, DesignerObject)

protected:
    using NamedObject::NamedObject;
};

} // namespace Halvane::Corvex::Designer
