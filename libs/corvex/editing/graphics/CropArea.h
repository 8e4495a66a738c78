// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QGraphicsItem>

namespace Halvane::Corvex::Designer {

//! The rectangle that the user draws over the canvas.
class CORVEX_EXPORT CropArea : public QGraphicsItem
{
public:
    using QGraphicsItem::QGraphicsItem;

    //! Sets any two opposite corners.
    void setUp(const QPointF &corner, const QPointF &opposite);

    QRectF boundingRect() const override { return m_rect; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRectF m_rect;
};

} // namespace Halvane::Corvex::Designer
