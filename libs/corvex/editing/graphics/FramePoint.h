// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QPointF>
#include <QQuickItem>
#include <QRectF>
#include <QSizeF>

#include <span>

namespace Halvane::Corvex::Designer {

/*! One of the nine points of a rectangle that an item can turn about; all but the centre are also the handles
    by which it is resized.

    A handle moves the edges on its side: horizontal and vertical are -1 for the left and the upper edge, 1
   for the right and the lower edge, and 0 for none.
*/
struct CORVEX_EXPORT FramePoint
{
    QQuickItem::TransformOrigin origin;
    int horizontal;
    int vertical;

    //! The centre for a number that is no point.
    static const FramePoint &of(QQuickItem::TransformOrigin origin);
    //! Corners first: where zones overlap in a small item, a corner is the more useful catch.
    static std::span<const FramePoint> handles();

    //! Across the centre.
    const FramePoint &opposite() const
    {
        return of(QQuickItem::TransformOrigin(QQuickItem::BottomRight - origin));
    }
    bool isCorner() const { return horizontal != 0 && vertical != 0; }
    QPointF in(const QRectF &rect) const;
    /*! What \a rect becomes when this handle is dragged to \a point. No length gets smaller than \a minimum,
        so that nothing is ever turned inside out. */
    QSizeF sizeAt(const QRectF &rect, const QPointF &point, double minimum) const;
    //! \a size changed to the proportions of \a original, as far as the handle goes, both lengths at least
    //! \a minimum. What has no area has no proportions to keep.
    QSizeF proportionalSize(const QSizeF &size, const QSizeF &original, double minimum) const;
    //! Where the top left of \a rect is once it has \a size and the edges opposite the handle have stayed;
    //! along an edge that the handle does not move, the middle stays.
    QPointF topLeftAt(const QRectF &rect, const QSizeF &size) const;
    //! For an item that is turned clockwise by \a rotation degrees.
    Qt::CursorShape cursor(double rotation) const;
};

} // namespace Halvane::Corvex::Designer
