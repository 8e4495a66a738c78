// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/templates/NamedObject.h"

namespace Halvane::Corvex::Designer {

//! The installed tutorials.
class CORVEX_EXPORT TutorialContainer : public NamedObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(TutorialContainer, DesignerObject)

protected:
    using NamedObject::NamedObject;
};

} // namespace Halvane::Corvex::Designer
