// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/FramePoint.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Halvane::Corvex::Designer {

namespace {

constexpr std::array framePoints{
    FramePoint{QQuickItem::TopLeft, -1, -1},   FramePoint{QQuickItem::TopRight, 1, -1},
    FramePoint{QQuickItem::BottomRight, 1, 1}, FramePoint{QQuickItem::BottomLeft, -1, 1},
    FramePoint{QQuickItem::Top, 0, -1},        FramePoint{QQuickItem::Right, 1, 0},
    FramePoint{QQuickItem::Bottom, 0, 1},      FramePoint{QQuickItem::Left, -1, 0},
    FramePoint{QQuickItem::Center, 0, 0},
};

//! The new length in one direction, where the handle moves the edge at \a low, the edge at \a high, or none.
double lengthAt(int direction, double low, double high, double point, double minimum)
{
    switch (direction) {
    case -1:
        return std::max(high - point, minimum);
    case 1:
        return std::max(point - low, minimum);
    default:
        return high - low;
    }
}

double startAt(int direction, double low, double oldLength, double newLength)
{
    switch (direction) {
    case -1:
        return low + oldLength - newLength;
    case 1:
        return low;
    default:
        return low + (oldLength - newLength) / 2;
    }
}

} // namespace

const FramePoint &FramePoint::of(QQuickItem::TransformOrigin origin)
{
    const auto *const found = std::ranges::find(framePoints, origin, &FramePoint::origin);
    return found == framePoints.end() ? framePoints.back() : *found;
}

std::span<const FramePoint> FramePoint::handles()
{
    return std::span(framePoints).first(framePoints.size() - 1);
}

QPointF FramePoint::in(const QRectF &rect) const
{
    return {rect.x() + rect.width() * (horizontal + 1) / 2, rect.y() + rect.height() * (vertical + 1) / 2};
}

QSizeF FramePoint::sizeAt(const QRectF &rect, const QPointF &point, double minimum) const
{
    const double width =
        horizontal ? lengthAt(horizontal, rect.left(), rect.right(), point.x(), minimum) : rect.width();
    const double height =
        vertical ? lengthAt(vertical, rect.top(), rect.bottom(), point.y(), minimum) : rect.height();
    return {width, height};
}

QSizeF FramePoint::proportionalSize(const QSizeF &size, const QSizeF &original, double minimum) const
{
    if (original.isEmpty()) {
        return size;
    }
    const double across = size.width() / original.width();
    const double down = size.height() / original.height();
    const double wanted = isCorner() ? std::max(across, down) : horizontal ? across : down;
    const double least = minimum / std::min(original.width(), original.height());
    return original * std::max(wanted, least);
}

QPointF FramePoint::topLeftAt(const QRectF &rect, const QSizeF &size) const
{
    return {startAt(horizontal, rect.x(), rect.width(), size.width()),
            startAt(vertical, rect.y(), rect.height(), size.height())};
}

Qt::CursorShape FramePoint::cursor(double rotation) const
{
    if (origin == QQuickItem::Center) {
        return Qt::SizeAllCursor;
    }
    // Clockwise from the right, in steps of 45 degrees. Opposite directions share a cursor.
    constexpr std::array shapes{Qt::SizeHorCursor, Qt::SizeFDiagCursor, Qt::SizeVerCursor,
                                Qt::SizeBDiagCursor};
    const double angle = std::atan2(vertical, horizontal) * 180 / M_PI + rotation;
    const int step = int(std::lround(angle / 45) % 4);
    return shapes[size_t(step < 0 ? step + 4 : step)];
}

} // namespace Halvane::Corvex::Designer
