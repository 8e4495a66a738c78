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

class CanvasMarks::Mark : public QGraphicsItem
{
public:
    using QGraphicsItem::QGraphicsItem;

    void set(const QLineF &line, bool isDistance, double pixel)
    {
        prepareGeometryChange();
        m_line = line;
        m_isDistance = isDistance;
        m_pixel = pixel;
    }

    QRectF boundingRect() const override
    {
        const double room = (m_isDistance ? margin : 1) * m_pixel;
        return QRectF(m_line.p1(), m_line.p2()).normalized().adjusted(-room, -room, room, room);
    }
    //! Empty, so that the mouse never hits the marks.
    QPainterPath shape() const override { return {}; }

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->setPen(QPen(markColor, 0));
        painter->drawLine(m_line);
        if (m_isDistance) {
            const QPointF across = isHorizontal() ? QPointF(0, tick) : QPointF(tick, 0);
            for (const QPointF &end : {m_line.p1(), m_line.p2()}) {
                painter->drawLine(end - across * m_pixel, end + across * m_pixel);
            }
            paintFigure(*painter);
        }
    }

private:
    bool isHorizontal() const { return std::abs(m_line.dx()) > 0; }
    void paintFigure(QPainter &painter) const;

    QLineF m_line;
    bool m_isDistance = false;
    double m_pixel = 1;
};

void CanvasMarks::Mark::paintFigure(QPainter &painter) const
{
    QFont font;
    font.setPixelSize(figureSize);
    const QString figure = QLocale().toString(std::round(m_line.length() * 10) / 10, 'g', 6);
    const QFontMetricsF metrics(font);
    const QSizeF size(metrics.horizontalAdvance(figure) + 2 * padding, metrics.height());
    QRectF place({}, size);
    // Beside the middle of the line, so that the line of a short distance stays visible.
    place.moveCenter(isHorizontal() ? QPointF(0, size.height() / 2 + tick + 1)
                                    : QPointF(size.width() / 2 + tick + 1, 0));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(m_line.center());
    painter.scale(m_pixel, m_pixel);
    painter.setPen(Qt::NoPen);
    painter.setBrush(markColor);
    painter.drawRoundedRect(place, padding, padding);
    painter.setPen(Qt::white);
    painter.setFont(font);
    painter.drawText(place, Qt::AlignCenter, figure);
    painter.restore();
}

CanvasMarks::CanvasMarks()
{
    setFlag(ItemHasNoContents);
    setZValue(std::numeric_limits<double>::max());
}

void CanvasMarks::show(const SnapMarks &marks, double pixel)
{
    if (marks == m_marks && pixel == m_pixel) {
        return;
    }
    m_marks = marks;
    m_pixel = pixel;
    const qsizetype lines = marks.lines.size();
    const qsizetype count = lines + marks.distances.size();
    while (m_items.size() < count) {
        m_items.append(new Mark(this));
    }
    for (qsizetype index = 0; index < m_items.size(); ++index) {
        Mark *mark = m_items.at(index);
        mark->setVisible(index < count);
        if (index < count) {
            const bool isDistance = index >= lines;
            mark->set(isDistance ? marks.distances.at(index - lines) : marks.lines.at(index), isDistance,
                      pixel);
        }
    }
}

} // namespace Halvane::Corvex::Designer
