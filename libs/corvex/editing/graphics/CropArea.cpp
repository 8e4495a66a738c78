// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/CropArea.h"

#include <QPainter>

namespace Halvane::Corvex::Designer {

void CropArea::setUp(const QPointF &corner, const QPointF &opposite)
{
    prepareGeometryChange();
    m_rect = QRectF(corner, opposite).normalized();
}

void CropArea::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(QPen(QColor(0, 90, 200), 0));
    painter->setBrush(QColor(0, 90, 200, 40));
    painter->drawRect(m_rect);
}

} // namespace Halvane::Corvex::Designer
