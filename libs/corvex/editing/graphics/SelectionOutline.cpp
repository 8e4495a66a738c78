// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/SelectionOutline.h"

#include "corvex/editing/graphics/FramedItem.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <limits>

namespace Halvane::Corvex::Designer {

namespace {

constexpr QColor outlineColor(0, 90, 200);
//! How far handles and grip extend beyond the frame, in scene coordinates.
constexpr double reach = 28;

} // namespace

SelectionOutline::SelectionOutline()
{
    setZValue(std::numeric_limits<double>::max());
}

QRectF SelectionOutline::follow(const QList<FramedItem *> &items, bool hasHandles)
{
    prepareGeometryChange();
    QRectF bounds;
    m_frames.clear();
    m_frames.reserve(4 * items.size());
    for (const FramedItem *item : items) {
        const QRectF frame = item->frame();
        const auto at = [graphic = item->graphic()](const QPointF &corner) {
            return graphic->mapToScene(corner);
        };
        const std::array corners{at(frame.topLeft()), at(frame.topRight()), at(frame.bottomRight()),
                                 at(frame.bottomLeft())};
        for (std::size_t corner = 0; corner < corners.size(); ++corner) {
            m_frames.append({corners[corner], corners[(corner + 1) % corners.size()]});
        }
        const auto [left, right] = std::ranges::minmax(corners, {}, &QPointF::x);
        const auto [top, bottom] = std::ranges::minmax(corners, {}, &QPointF::y);
        bounds |= QRectF(QPointF(left.x(), top.y()), QPointF(right.x(), bottom.y()));
    }
    m_handled = hasHandles && items.size() == 1 ? items.constFirst()->dataObject() : nullptr;
    const double margin = m_handled ? reach : 1;
    m_bounds = items.isEmpty() ? QRectF() : bounds.adjusted(-margin, -margin, margin, margin);
    return bounds;
}

void SelectionOutline::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(QPen(outlineColor, 0));
    painter->drawLines(m_frames);
    if (const FramedItem *item = FramedItem::of(m_handled)) {
        paintHandles(*painter, *item);
    }
}

void SelectionOutline::paintHandles(QPainter &painter, const FramedItem &item)
{
    const double half = item.detectionWidth() / 2;
    painter.setBrush(Qt::white);
    if (item.isRotatable()) {
        painter.drawLine(item.handlePoint(QQuickItem::Top), item.rotationGrip());
        painter.drawEllipse(item.rotationGrip(), half, half);
    }
    if (item.isResizable()) {
        for (const QQuickItem::TransformOrigin handle : item.shownHandles()) {
            const QPointF middle = item.handlePoint(handle);
            painter.drawRect(QRectF(middle - QPointF(half, half), middle + QPointF(half, half)));
        }
    }
}

} // namespace Halvane::Corvex::Designer
