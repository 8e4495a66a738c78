// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/private/CanvasMarks.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>

#include <cmath>
#include <limits>

namespace Halvane::Corvex::Designer {

namespace {

constexpr QColor markColor(214, 0, 110); // rare on panels, and visible on light and dark
constexpr double margin = 60;            // pixels; room for a figure
constexpr double tick = 4;               // pixels; half of the stroke at the end of a distance
constexpr int figureSize = 11;           // pixels
constexpr double padding = 3;            // pixels

} // namespace

CanvasMarks::CanvasMarks()
{
    setZValue(std::numeric_limits<double>::max());
}

void CanvasMarks::show(const SnapMarks &marks, double pixel)
{
    if (marks == m_marks && pixel == m_pixel) {
        return;
    }
    prepareGeometryChange();
    m_marks = marks;
    m_pixel = pixel;
    m_bounds = {};
    for (const QList<QLineF> *lines : {&m_marks.lines, &m_marks.distances}) {
        for (const QLineF &line : *lines) {
            const double room = margin * pixel;
            m_bounds |= QRectF(line.p1(), line.p2()).normalized().adjusted(-room, -room, room, room);
        }
    }
}

void CanvasMarks::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(markColor, 0));
    painter->drawLines(m_marks.lines);
    for (const QLineF &distance : m_marks.distances) {
        painter->drawLine(distance);
        const QPointF across = std::abs(distance.dx()) > 0 ? QPointF(0, tick) : QPointF(tick, 0);
        for (const QPointF &end : {distance.p1(), distance.p2()}) {
            painter->drawLine(end - across * m_pixel, end + across * m_pixel);
        }
    }
    painter->setRenderHint(QPainter::Antialiasing);
    for (const QLineF &distance : m_marks.distances) {
        paintFigure(*painter, distance);
    }
}

void CanvasMarks::paintFigure(QPainter &painter, const QLineF &distance) const
{
    QFont font;
    font.setPixelSize(figureSize);
    const QString figure = QLocale().toString(std::round(distance.length() * 10) / 10, 'g', 6);
    const QFontMetricsF metrics(font);
    const QSizeF size(metrics.horizontalAdvance(figure) + 2 * padding, metrics.height());
    QRectF place({}, size);
    // Beside the middle of the line, so that the line of a short distance stays visible.
    const bool isHorizontal = std::abs(distance.dx()) > 0;
    place.moveCenter(isHorizontal ? QPointF(0, size.height() / 2 + tick + 1)
                                  : QPointF(size.width() / 2 + tick + 1, 0));
    painter.save();
    painter.translate(distance.center());
    painter.scale(m_pixel, m_pixel);
    painter.setPen(Qt::NoPen);
    painter.setBrush(markColor);
    painter.drawRoundedRect(place, padding, padding);
    painter.setPen(Qt::white);
    painter.setFont(font);
    painter.drawText(place, Qt::AlignCenter, figure);
    painter.restore();
}

} // namespace Halvane::Corvex::Designer
