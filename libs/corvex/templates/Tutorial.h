// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/templates/NamedObject.h"

namespace Halvane::Corvex::Designer {

//! A tutorial.
class CORVEX_EXPORT Tutorial : public NamedObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(Tutorial, DesignerObject)

protected:
    using NamedObject::NamedObject;
};

} // namespace Halvane::Corvex::Designer
