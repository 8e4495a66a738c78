// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QGraphicsRectItem>

namespace Halvane::Corvex::Designer {

//! The outline around several selected items.
class CORVEX_EXPORT GraphicsBounding : public QGraphicsRectItem
{
public:
    explicit GraphicsBounding(QGraphicsItem *parent = nullptr);
    explicit GraphicsBounding(const QRectF &rect, QGraphicsItem *parent = nullptr);
    GraphicsBounding(double x, double y, double width, double height, QGraphicsItem *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};

} // namespace Halvane::Corvex::Designer
