// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QFlags>

namespace Halvane::Corvex::Designer {

class DesignerObject;

/*! Whether an element is hidden or locked on the canvas. The state belongs to the editing session: it stays
    with the object while that exists, and is not a part of the project.

    The mouse and a rectangle that selects ignore such elements.
*/
class CORVEX_EXPORT CanvasState
{
public:
    enum Flag { Hidden = 1, Locked = 2 };
    Q_DECLARE_FLAGS(Flags, Flag)

    //! Of the object itself.
    static Flags of(const DesignerObject *object);
    //! Also updates the item on the canvas. Qt removes a hidden item from the selection of the canvas.
    static void set(DesignerObject *object, Flags flags);
    //! Whether the object, or a group that it is in, has that flag.
    static bool has(const DesignerObject *object, Flag flag);
    //! Whether the object can be changed with the mouse.
    static bool isFree(const DesignerObject *object);
};

} // namespace Halvane::Corvex::Designer
