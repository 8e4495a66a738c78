// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Where a visual element stands and how it is turned, in the coordinates of its screen or group.
struct ElementPlacement
{
    QPointF position;
    QSizeF size;
    double rotation = 0; //!< in degrees, clockwise, about the origin
    QString transformOrigin;

    static ElementPlacement of(const DesignerObject *element);

    //! The point about which it turns, from its own top left corner.
    QPointF origin() const;
    //! What it covers, turned as it is.
    QRectF actualBoundingRect() const;
    //! The same place outside of the group \a group for something that stands in it.
    ElementPlacement outOf(const ElementPlacement &group) const;
};

} // namespace Halvane::Corvex::Designer
