// SPDX-License-Identifier: MIT
#include "corvex/widgets/ColorSwatch.h"

#include "corvex/widgets/Theme.h"

#include <QPainter>

namespace Halvane::Corvex::Designer {

ColorSwatch::ColorSwatch(QWidget *parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorSwatch::setColor(const QColor &color)
{
    if (m_color != color) {
        m_color = color;
        update();
    }
}

QSize ColorSwatch::sizeHint() const
{
    const int side = Theme::fieldHeight(this);
    return {side, side};
}

QBrush ColorSwatch::chessboard()
{
    QImage board(8, 8, QImage::Format_RGB32);
    board.fill(Qt::white);
    for (int place = 0; place < 64; ++place) {
        if ((place % 8 < 4) == (place / 8 < 4)) {
            board.setPixel(place % 8, place / 8, qRgb(0xCC, 0xCC, 0xCC));
        }
    }
    return {board};
}

void ColorSwatch::draw(QPainter &painter, const QRectF &rect, const QColor &color, const QPalette &palette)
{
    const QRectF inner = rect.adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (color.isValid() && color.alpha() < 255) {
        painter.setBrushOrigin(rect.topLeft());
        painter.setBrush(chessboard());
        painter.drawRoundedRect(inner, 2, 2);
    }
    painter.setBrush(color.isValid() ? color : palette.color(QPalette::Base));
    painter.setPen(palette.color(QPalette::PlaceholderText));
    painter.drawRoundedRect(inner, 2, 2);
    if (!color.isValid()) {
        painter.drawLine(inner.bottomLeft(), inner.topRight());
    }
    painter.restore();
}

void ColorSwatch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!isEnabled()) {
        painter.setOpacity(0.5);
    }
    const QRectF area = rect();
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), 3, 3);
    }
    draw(painter, area.adjusted(2, 2, -2, -2), m_color, palette());
}

} // namespace Halvane::Corvex::Designer
