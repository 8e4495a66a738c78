// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QTransform>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The position and rotation of a visual element, in the coordinates of its screen or group.
struct ElementPlacement
{
    QPointF position;
    QSizeF size;
    double rotation = 0; //!< in degrees, clockwise, about the origin
    QString transformOrigin;
    double scale = 1;

    static ElementPlacement of(const DesignerObject *element);

    //! The point about which it rotates and scales, relative to its top left corner.
    QPointF origin() const;
    //! Its bounding rectangle, including the rotation.
    QRectF actualBoundingRect() const;
    //! From its own coordinates to those of its screen or group.
    QTransform outward() const;
    //! The rectangle that an element covers in its screen or group, with its scale and rotation; that of a
    //! group covers its members.
    static QRectF shownBounds(const DesignerObject *element);
    //! The position at which its contents appear in the same place as with \a oldSize: the size determines
    //! the point of rotation.
    QPointF positionAfterSize(const QSizeF &oldSize) const;
    //! The same placement in the coordinates outside of the group \a group, for one of its members.
    ElementPlacement outOf(const ElementPlacement &group) const;

private:
    //! A vector inside of it, rotated and scaled.
    QPointF turned(const QPointF &way) const;
};

} // namespace Halvane::Corvex::Designer
