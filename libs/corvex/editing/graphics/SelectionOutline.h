// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsItem>
#include <QList>

namespace Halvane::Corvex::Designer {

class FramedItem;

//! The frames of the selected items; a single one has its handles and its grip too. It lies above all items.
class SelectionOutline : public QGraphicsItem
{
public:
    SelectionOutline();

    //! Takes over the items, and their places as they are now. Without handles there are the frames alone.
    void follow(const QList<FramedItem *> &items, bool hasHandles);

    QRectF boundingRect() const override { return m_bounds; }
    //! Nothing is ever hit.
    QPainterPath shape() const override { return {}; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    static void paintHandles(QPainter &painter, const FramedItem &item);

    QList<FramedItem *> m_items;
    QRectF m_bounds;
    bool m_hasHandles = false;
};

} // namespace Halvane::Corvex::Designer
