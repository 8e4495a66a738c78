// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

namespace Halvane::Corvex::Designer {

//! Which changes of order a list allows.
class ListOrder
{
public:
    //! Whether the user determines the place of the item, at least among items of its kind.
    static bool isFree(const DesignerProperty &list, const DesignerObject &item);
    //! Whether the two can be exchanged. If the list's own order reverses the swap, undo could not swap back.
    static bool canExchange(const DesignerProperty &list, const DesignerObject &first,
                            const DesignerObject &second);
};

} // namespace Halvane::Corvex::Designer
