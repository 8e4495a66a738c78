// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/GraphicsBounding.h"

#include <QPainter>

namespace Halvane::Corvex::Designer {

GraphicsBounding::GraphicsBounding(QGraphicsItem *parent)
    : GraphicsBounding(QRectF(), parent)
{ }

GraphicsBounding::GraphicsBounding(const QRectF &rect, QGraphicsItem *parent)
    : QGraphicsRectItem(rect, parent)
{ }

GraphicsBounding::GraphicsBounding(double x, double y, double width, double height, QGraphicsItem *parent)
    : GraphicsBounding(QRectF(x, y, width, height), parent)
{ }

void GraphicsBounding::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setPen(QPen(Qt::darkGray, 0, Qt::DashLine));
    painter->drawRect(rect());
}

} // namespace Halvane::Corvex::Designer
