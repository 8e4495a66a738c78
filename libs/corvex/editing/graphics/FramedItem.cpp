// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/FramedItem.h"

#include "corvex/editing/graphics/FramePoint.h"

#include <QGraphicsItem>
#include <QLineF>

#include <cmath>

namespace Halvane::Corvex::Designer {

namespace {

//! The distance of the grip from the upper edge, and the space that a handle needs, in widths of the
//! detection zone.
constexpr double gripDistance = 4;
constexpr double roomForHandle = 3;

} // namespace

QPointF FramedItem::handlePoint(QQuickItem::TransformOrigin handle) const
{
    return graphic()->mapToScene(FramePoint::of(handle).in(frame()));
}

QPointF FramedItem::rotationGrip() const
{
    const QPointF top = handlePoint(QQuickItem::Top);
    // "Up" for the item, including all rotations and scales of the item and its groups.
    QLineF upwards(top, graphic()->mapToScene(FramePoint::of(QQuickItem::Top).in(frame()) - QPointF(0, 1)));
    if (upwards.isNull()) {
        return top;
    }
    upwards.setLength(gripDistance * detectionWidth());
    return upwards.p2();
}

bool FramedItem::isInZone(const QPointF &zone, const QPointF &point) const
{
    const QPointF away = point - zone;
    return std::max(std::abs(away.x()), std::abs(away.y())) <= detectionWidth() / 2;
}

bool FramedItem::isRotationGrip(const QPointF &point) const
{
    return isRotatable() && isInZone(rotationGrip(), point);
}

QList<QQuickItem::TransformOrigin> FramedItem::shownHandles() const
{
    const double room = roomForHandle * detectionWidth();
    const QPointF corner = handlePoint(QQuickItem::TopLeft);
    const bool isWide = QLineF(corner, handlePoint(QQuickItem::TopRight)).length() >= room;
    const bool isHigh = QLineF(corner, handlePoint(QQuickItem::BottomLeft)).length() >= room;
    QList<QQuickItem::TransformOrigin> shown;
    for (const FramePoint &handle : FramePoint::handles()) {
        if (handle.isCorner() || (handle.vertical ? isWide : isHigh)) {
            shown.append(handle.origin);
        }
    }
    return shown;
}

QQuickItem::TransformOrigin FramedItem::getResizeHandle(const QPointF &point, bool *found) const
{
    QQuickItem::TransformOrigin caught = QQuickItem::Center;
    if (isResizable()) {
        const QList<QQuickItem::TransformOrigin> handles = shownHandles();
        const auto handle = std::ranges::find_if(
            handles, [&](QQuickItem::TransformOrigin each) { return isInZone(handlePoint(each), point); });
        caught = handle == handles.cend() ? QQuickItem::Center : *handle;
    }
    if (found) {
        *found = caught != QQuickItem::Center;
    }
    return caught;
}

void FramedItem::resizeByMouse(QQuickItem::TransformOrigin handle, const QSizeF &size,
                               const QPointF &position)
{
    if (!isResizable()) {
        return;
    }
    const FramePoint &framePoint = FramePoint::of(handle);
    QRectF wanted(position, size);
    if (keepsRatio()) {
        wanted.setSize(framePoint.proportionalSize(size, proportions(), minSize()));
        wanted.moveTopLeft(framePoint.topLeftAt(frame(), wanted.size()));
    }
    // Resizing moves the transform origin and thereby the whole item, and a group may not become as small as
    // requested. Correct the position so that the point opposite the handle stays in place.
    const QPointF fixed = graphic()->mapToParent(framePoint.opposite().in(wanted));
    setFrameSize(wanted.size());
    updateTransformOriginPoint();
    graphic()->setPos(graphic()->pos() + fixed - graphic()->mapToParent(framePoint.opposite().in(frame())));
}

void FramedItem::rotateByMouse(double angle)
{
    if (isRotatable()) {
        const double turned = std::fmod(angle, 360);
        graphic()->setRotation(turned < 0 ? turned + 360 : turned);
    }
}

} // namespace Halvane::Corvex::Designer
