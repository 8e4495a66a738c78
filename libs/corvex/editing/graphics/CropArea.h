// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QGraphicsItem>

namespace Halvane::Corvex::Designer {

//! The rectangle that the mouse draws over the canvas.
class CORVEX_EXPORT CropArea : public QGraphicsItem
{
public:
    using QGraphicsItem::QGraphicsItem;

    //! From any corner to the one opposite.
    void setUp(const QPointF &corner, const QPointF &opposite);

    QRectF boundingRect() const override { return m_rect; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRectF m_rect;
};

} // namespace Halvane::Corvex::Designer
