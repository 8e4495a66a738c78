// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

namespace Halvane::Corvex::Designer {

//! Which properties of elements states and actions can set.
class CORVEX_EXPORT StateTarget
{
public:
    //! Whether the code of the device can assign the property. It cannot assign one whose value the device
    //! does not get, such as an expression that replaces another value, or one that is a handler.
    static bool canBeSet(const DesignerProperty &property);
    //! The property whose value the expression replaces, such as "text" for "textBinding"; null if there is
    //! none.
    static SharedProperty replacedBy(const DesignerProperty &expression);
};

} // namespace Halvane::Corvex::Designer
