// SPDX-License-Identifier: MIT
#include "canvas/PasteboardShade.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <limits>

namespace Halvane::Corvex::Nova {

PasteboardShade::PasteboardShade()
{
    // Above all elements and below the selection.
    setZValue(std::numeric_limits<double>::max() / 2);
    setFlag(ItemUsesExtendedStyleOption);
}

void PasteboardShade::place(const QRectF &screen, const QRectF &whole)
{
    prepareGeometryChange();
    m_screen = screen;
    m_whole = whole;
}

void PasteboardShade::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void PasteboardShade::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *)
{
    const QRectF sides[] = {
        {m_whole.topLeft(), QPointF(m_whole.right(), m_screen.top())},
        {QPointF(m_whole.left(), m_screen.bottom()), m_whole.bottomRight()},
        {QPointF(m_whole.left(), m_screen.top()), m_screen.bottomLeft()},
        {m_screen.topRight(), QPointF(m_whole.right(), m_screen.bottom())},
    };
    for (const QRectF &side : sides) {
        const QRectF exposed = side.intersected(option->exposedRect);
        if (!exposed.isEmpty()) {
            painter->fillRect(exposed, m_color);
        }
    }
}

} // namespace Halvane::Corvex::Nova
