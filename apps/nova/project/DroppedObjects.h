// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

class QMimeData;
class QWidget;

namespace Halvane::Corvex::Designer {
class DesignerObject;
}

namespace Halvane::Corvex::Nova {

class Workspace;

/*! What a user drops on the canvas becomes an element: a class of the palette, images of the project or of
    other programs, variables, and screens.
*/
class DroppedObjects
{
public:
    static bool canDrop(const QMimeData &data, Workspace &workspace);
    /*! One step of the history. The elements are centred at \a place. A variable that is dropped on a text
        binds it, and a screen that is dropped on a visible element makes that open the screen; \a target is
        the element under the mouse or null.
    */
    static bool drop(const QMimeData &data, const QPointF &place, Designer::DesignerObject *target,
                     Workspace &workspace, QWidget *parent);
};

} // namespace Halvane::Corvex::Nova
