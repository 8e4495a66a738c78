// SPDX-License-Identifier: MIT
#include "corvex/widgets/Ruler.h"

#include "corvex/widgets/Theme.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace Halvane::Corvex::Designer {

namespace {

constexpr double leastLabelDistance = 50; // pixels
constexpr int smallLines = 5;             // per labelled line
constexpr int smallLine = 5;              // pixels
constexpr double fontScale = 0.75;

} // namespace

Ruler::Ruler(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
{
    const bool isHorizontal = orientation == Qt::Horizontal;
    setSizePolicy(isHorizontal ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                  isHorizontal ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    setCursor(isHorizontal ? Qt::SplitVCursor : Qt::SplitHCursor);
}

QSize Ruler::sizeHint() const
{
    return {thickness, thickness};
}

void Ruler::setPlace(double origin, double scale)
{
    if (origin != m_origin || scale != m_scale) {
        m_origin = origin;
        m_scale = scale;
        update();
    }
}

void Ruler::setMark(std::optional<double> place)
{
    if (place != m_mark) {
        m_mark = place;
        update();
    }
}

void Ruler::setRange(double from, double to)
{
    if (from != m_from || to != m_to) {
        m_from = from;
        m_to = to;
        update();
    }
}

double Ruler::stepFor(double scale)
{
    const double least = leastLabelDistance / scale;
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least) {
            return std::max(1.0, factor * power);
        }
    }
    return std::max(1.0, 10 * power);
}

void Ruler::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QPalette colors = palette();
    painter.fillRect(rect(), colors.color(QPalette::Window));
    const bool isHorizontal = m_orientation == Qt::Horizontal;
    const int length = isHorizontal ? width() : height();
    if (!isHorizontal) {
        // Draw as if it were horizontal; places grow downwards.
        painter.rotate(90);
        painter.scale(1, -1);
    }
    if (m_to > m_from) {
        QColor range = colors.color(QPalette::Highlight);
        range.setAlphaF(0.25F);
        painter.fillRect(QRectF(pixelOf(m_from), 0, (m_to - m_from) * m_scale, thickness), range);
    }
    painter.setPen(Theme::line(colors));
    painter.drawLine(0, thickness - 1, length, thickness - 1);

    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * fontScale);
    painter.setFont(small);
    const double step = stepFor(m_scale);
    const double smallStep = step / smallLines;
    const double first = std::floor(-m_origin / m_scale / step) * step;
    for (double place = first; pixelOf(place) < length; place += step) {
        const double x = std::round(pixelOf(place)) + 0.5;
        painter.setPen(Theme::frame(colors));
        painter.drawLine(QPointF(x, 0), QPointF(x, thickness - 1));
        for (int line = 1; line < smallLines; ++line) {
            const double between = std::round(pixelOf(place + line * smallStep)) + 0.5;
            painter.drawLine(QPointF(between, thickness - 1 - smallLine), QPointF(between, thickness - 1));
        }
        painter.setPen(Theme::muted(colors));
        const QString label = locale().toString(qRound64(place));
        painter.save();
        painter.translate(x + 2, thickness / 2.0);
        if (!isHorizontal) {
            painter.scale(-1, 1);
            painter.drawText(
                QRectF(-leastLabelDistance, -thickness / 2.0, leastLabelDistance - 2, thickness - 4),
                Qt::AlignRight | Qt::AlignVCenter, label);
        } else {
            painter.drawText(QRectF(0, -thickness / 2.0, leastLabelDistance, thickness - 4),
                             Qt::AlignLeft | Qt::AlignVCenter, label);
        }
        painter.restore();
    }
    if (m_mark) {
        painter.setPen(colors.color(QPalette::Highlight));
        const double x = std::round(pixelOf(*m_mark)) + 0.5;
        painter.drawLine(QPointF(x, 0), QPointF(x, thickness));
    }
}

void Ruler::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        emit guideDragged(event->globalPosition().toPoint());
    }
}

void Ruler::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        emit guideDropped(event->globalPosition().toPoint());
    }
}

} // namespace Halvane::Corvex::Designer
