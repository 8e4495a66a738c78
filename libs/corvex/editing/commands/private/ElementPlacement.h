// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
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
    double scale = 1;

    static ElementPlacement of(const DesignerObject *element);

    //! The point about which it turns and scales, from its own top left corner.
    QPointF origin() const;
    //! What it covers, turned as it is.
    QRectF actualBoundingRect() const;
    //! Where it has to be so that what it holds is seen where it was when it had \a oldSize: another size is
    //! another point to turn about.
    QPointF positionAfterSize(const QSizeF &oldSize) const;
    //! The same place outside of the group \a group for something that stands in it.
    ElementPlacement outOf(const ElementPlacement &group) const;

private:
    //! A way within it, turned and scaled as it is.
    QPointF turned(const QPointF &way) const;
};

} // namespace Halvane::Corvex::Designer
