// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/SelectionOutline.h"

#include "corvex/editing/graphics/FramedItem.h"

#include <QPainter>

#include <limits>

namespace Halvane::Corvex::Designer {

namespace {

constexpr QColor outlineColor(0, 90, 200);
//! How far handles and grip reach beyond a frame, in the coordinates of the scene.
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
    for (const FramedItem *item : items) {
        const QPolygonF corners = item->graphic()->mapToScene(item->frame());
        bounds |= corners.boundingRect();
        for (qsizetype corner = 0; corner < corners.size(); ++corner) {
            m_frames.append({corners.at(corner), corners.at((corner + 1) % corners.size())});
        }
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
