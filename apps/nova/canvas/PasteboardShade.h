// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QGraphicsItem>

namespace Halvane::Corvex::Nova {

//! Dims elements beside the screen, which the device does not show. The mouse reaches them.
class PasteboardShade : public QGraphicsItem
{
public:
    PasteboardShade();

    //! \a screen and \a whole are in scene coordinates; the area between them is dimmed.
    void place(const QRectF &screen, const QRectF &whole);
    void setColor(const QColor &color);

    QRectF boundingRect() const override { return m_whole; }
    //! Empty, so that the mouse never hits the shade.
    QPainterPath shape() const override { return {}; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRectF m_screen;
    QRectF m_whole;
    QColor m_color;
};

} // namespace Halvane::Corvex::Nova
