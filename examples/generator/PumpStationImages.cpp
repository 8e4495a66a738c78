// SPDX-License-Identifier: MIT
// The images of the pump station, each in its displayed size.
#include "PanelStyle.h"
#include "PumpStation.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace PanelStyle;

namespace {

QColor opaque(QRgb color)
{
    return QColor::fromRgba(color);
}

QFont font(int pixels, bool isBold)
{
    QFont result(u"DejaVu Sans"_s);
    result.setPixelSize(pixels);
    result.setBold(isBold);
    return result;
}

void drawPump(QPainter &painter, const QRectF &area)
{
    painter.setPen(QPen(opaque(faint), 3));
    painter.setBrush(opaque(cardBorder));
    // The foot, the pressure pipe, the casing and the triangle that shows the pumping direction.
    painter.drawPolygon(QPolygonF{QPointF(30, 72), QPointF(66, 72), QPointF(78, 92), QPointF(18, 92)});
    painter.drawRect(QRectF(51, 9, 40, 21));
    painter.drawEllipse(area.center() - QPointF(0, 3), 36, 36);
    painter.setBrush(opaque(card));
    painter.drawPolygon(QPolygonF{QPointF(33, 24), QPointF(78, 45), QPointF(33, 66)});
}

//! A dial from 0 to 10 bar over 240 degrees, with zero at the lower left.
void drawGauge(QPainter &painter, const QRectF &area)
{
    constexpr int bars = 10;
    constexpr double degreesPerBar = 24;
    constexpr double start = -120;
    painter.translate(area.center());
    painter.setPen(QPen(opaque(stopped), 3));
    painter.setBrush(opaque(0xfffafbfc));
    painter.drawEllipse(QPointF(0, 0), 85, 85);
    constexpr struct
    {
        int from;
        int to;
        QRgb color;
    } zones[] = {{0, 6, running}, {6, 8, warning}, {8, 10, alarm}};
    for (const auto &[from, to, color] : zones) {
        painter.setPen(QPen(opaque(color), 6, Qt::SolidLine, Qt::FlatCap));
        // Arcs are measured counter-clockwise from three o'clock, in sixteenths of a degree.
        painter.drawArc(QRectF(-78, -78, 156, 156), int((90 - start - from * degreesPerBar) * 16),
                        int((from - to) * degreesPerBar * 16));
    }
    painter.setFont(font(13, false));
    for (int bar = 0; bar <= bars; ++bar) {
        painter.save();
        painter.rotate(start + bar * degreesPerBar);
        painter.setPen(QPen(opaque(ink), bar % 2 == 0 ? 2 : 1));
        painter.drawLine(QPointF(0, -75), QPointF(0, bar % 2 == 0 ? -64 : -69));
        if (bar % 2 == 0) {
            painter.translate(0, -53);
            painter.rotate(-start - bar * degreesPerBar);
            painter.drawText(QRectF(-14, -9, 28, 18), Qt::AlignCenter, QString::number(bar));
        }
        painter.restore();
    }
}

//! The axes of the plot on a card; its field begins 64 pixels from the left and 24 from the top.
void drawTrend(QPainter &painter, const QRectF &area)
{
    const QRectF field(64, 24, 680, 300);
    constexpr int steps = 5;
    painter.setPen(QPen(opaque(cardBorder), 1));
    painter.setBrush(opaque(card));
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    painter.setFont(font(14, false));
    for (int i = 0; i <= steps; ++i) {
        const double y = field.bottom() - i * field.height() / steps;
        painter.setPen(QPen(opaque(cardBorder), 1));
        painter.drawLine(QPointF(field.left(), y), QPointF(field.right(), y));
        painter.setPen(opaque(faint));
        painter.drawText(QRectF(0, y - 10, 56, 20), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(i * 100 / steps) + u" %"_s);
    }
    painter.setPen(QPen(opaque(stopped), 2));
    painter.drawLine(field.bottomLeft(), field.topLeft());
    painter.drawLine(field.bottomLeft(), field.bottomRight());
    const QRectF legend(field.left(), 344, field.width(), 24);
    painter.setPen(opaque(faint));
    painter.drawText(legend, Qt::AlignLeft | Qt::AlignVCenter, u"earlier"_s);
    painter.drawText(legend, Qt::AlignRight | Qt::AlignVCenter, u"now"_s);
    painter.drawText(legend, Qt::AlignCenter, u"level of the well; its maximum in red"_s);
}

void drawButton(QPainter &painter, const QRectF &area, QRgb color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(opaque(color));
    painter.drawRoundedRect(area, 4, 4);
    painter.setBrush(opaque(onBar));
}

void drawMinus(QPainter &painter, const QRectF &area)
{
    drawButton(painter, area, accent);
    painter.drawRect(QRectF(0, 0, 22, 4).translated(area.center() - QPointF(11, 2)));
}

void drawPlus(QPainter &painter, const QRectF &area)
{
    drawMinus(painter, area);
    painter.drawRect(QRectF(0, 0, 4, 22).translated(area.center() - QPointF(2, 11)));
}

constexpr struct
{
    const char *file;
    int width;
    int height;
    void (*draw)(QPainter &painter, const QRectF &area);
} pictures[] = {
    {"gauge.png", 176, 176, &drawGauge}, {"minus.png", 64, 48, &drawMinus},   {"plus.png", 64, 48, &drawPlus},
    {"pump.png", 96, 96, &drawPump},     {"trend.png", 768, 392, &drawTrend},
};

constexpr char logo[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">
  <circle cx="16" cy="16" r="16" fill="#1f6fb2"/>
  <path d="M16 4 C20 11 24 15 24 20 A8 8 0 0 1 8 20 C8 15 12 11 16 4 Z" fill="#ffffff"/>
  <path d="M11 20 A5 5 0 0 0 16 25" fill="none" stroke="#4a96d2" stroke-width="2" stroke-linecap="round"/>
</svg>
)";

} // namespace

bool PumpStation::writeImages(const QString &folder)
{
    for (const auto &[file, width, height, draw] : pictures) {
        QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter, QRectF(0, 0, width, height));
        painter.end();
        if (!image.save(u"%1/%2"_s.arg(folder, QString::fromLatin1(file)))) {
            return false;
        }
    }
    QFile file(folder + "/logo.svg"_L1);
    return file.open(QIODevice::WriteOnly) && file.write(logo) == qint64(sizeof logo - 1);
}

} // namespace Halvane::Corvex::Examples
