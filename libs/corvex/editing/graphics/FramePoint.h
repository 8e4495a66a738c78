// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QPointF>
#include <QQuickItem>
#include <QRectF>
#include <QSizeF>

#include <span>

namespace Halvane::Corvex::Designer {

/*! One of the nine points of a rectangle about which an item can rotate. All except the centre are also the
    handles for resizing.

    A handle moves the edges on its side: horizontal and vertical are -1 for the left and the upper edge, 1
    for the right and the lower edge, and 0 for no edge.
*/
struct CORVEX_EXPORT FramePoint
{
    QQuickItem::TransformOrigin origin;
    int horizontal;
    int vertical;

    //! The centre for an invalid number.
    static const FramePoint &of(QQuickItem::TransformOrigin origin);
    //! Corners come first: where handles overlap in a small item, a corner is more useful.
    static std::span<const FramePoint> handles();

    //! The point on the other side of the centre.
    const FramePoint &opposite() const
    {
        return of(QQuickItem::TransformOrigin(QQuickItem::BottomRight - origin));
    }
    bool isCorner() const { return horizontal != 0 && vertical != 0; }
    QPointF in(const QRectF &rect) const;
    //! The size of \a rect when this handle is dragged to \a point. No length becomes smaller than \a
    //! minimum, so that nothing is turned inside out.
    QSizeF sizeAt(const QRectF &rect, const QPointF &point, double minimum) const;
    //! \a size adjusted to the proportions of \a original as far as the handle allows, with both lengths at
    //! least \a minimum. A size without area has no proportions.
    QSizeF proportionalSize(const QSizeF &size, const QSizeF &original, double minimum) const;
    //! The new top left of \a rect if it gets \a size and the edges opposite the handle stay in place. In a
    //! direction that the handle does not move, the middle stays in place.
    QPointF topLeftAt(const QRectF &rect, const QSizeF &size) const;
    //! For an item rotated clockwise by \a rotation degrees.
    Qt::CursorShape cursor(double rotation) const;
};

} // namespace Halvane::Corvex::Designer
