// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

namespace Halvane::Corvex::Designer {

//! What the order of a list leaves to the user.
class ListOrder
{
public:
    //! Whether the item stays where the user puts it, among items of its kind at least.
    static bool isFree(const DesignerProperty &list, const DesignerObject &item);
    //! Whether both can change places. A swap that the order undoes at once could not be taken back by
    //! another one.
    static bool canExchange(const DesignerProperty &list, const DesignerObject &first,
                            const DesignerObject &second);
};

} // namespace Halvane::Corvex::Designer
