// SPDX-License-Identifier: MIT
#include "corvex/widgets/private/ColorField.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/AccessibleValue.h"
#include "corvex/widgets/ColorSwatch.h"
#include "corvex/widgets/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr double smallStep = 0.01;
constexpr double largeStep = 0.1;
constexpr int barHeight = 16;
constexpr int planeWidth = 216;
constexpr int planeHeight = 120;
constexpr double hundred = 100;
constexpr double edge = 3; //!< space for the frame of the focus

QPointF clamped(const QPointF &place)
{
    return {std::clamp(place.x(), 0.0, 1.0), std::clamp(place.y(), 0.0, 1.0)};
}

} // namespace

ColorField::ColorField(Kind kind, QWidget *parent)
    : QWidget(parent)
    , m_kind(kind)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    AccessibleValue::set(this, {});
}

QSize ColorField::sizeHint() const
{
    return {planeWidth, m_kind == HueAndSaturation ? planeHeight : barHeight + int(2 * edge)};
}

void ColorField::setColor(const QColor &color, double hue)
{
    m_color = color;
    m_hue = hue;
    switch (m_kind) {
    case HueAndSaturation:
        m_place = {hue, 1 - color.hsvSaturationF()};
        break;
    case Value:
        m_place = {color.valueF(), 0.5};
        break;
    case Alpha:
        m_place = {color.alphaF(), 0.5};
        break;
    }
    refresh();
}

void ColorField::refresh()
{
    const QString across = QString::number(qRound(m_place.x() * hundred));
    const QString down = QString::number(qRound((1 - m_place.y()) * hundred));
    AccessibleValue::set(
        this, m_kind == HueAndSaturation
                  ? LocalizationHelper::coreString(u"Hue %1 %, saturation %2 %"_s).arg(across, down)
                  : across + u" %"_s);
    update();
}

QRectF ColorField::area() const
{
    return QRectF(rect()).adjusted(edge, edge, -edge, -edge);
}

QBrush ColorField::fill() const
{
    QLinearGradient gradient(area().topLeft(), area().topRight());
    if (m_kind == HueAndSaturation) {
        constexpr int hues = 6;
        for (int hue = 0; hue <= hues; ++hue) {
            gradient.setColorAt(hue / double(hues), QColor::fromHsvF(hue % hues / double(hues), 1, 1));
        }
    } else if (m_kind == Value) {
        gradient.setColorAt(0, Qt::black);
        gradient.setColorAt(1, QColor::fromHsvF(float(m_hue), m_color.hsvSaturationF(), 1));
    } else {
        QColor end = m_color;
        end.setAlpha(0);
        gradient.setColorAt(0, end);
        end.setAlpha(255);
        gradient.setColorAt(1, end);
    }
    return gradient;
}

void ColorField::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (m_kind == Alpha) {
        painter.setBrush(ColorSwatch::chessboard());
        painter.drawRoundedRect(area(), 2, 2);
    }
    painter.setBrush(fill());
    painter.drawRoundedRect(area(), 2, 2);
    if (m_kind == HueAndSaturation) {
        QLinearGradient white(area().topLeft(), area().bottomLeft());
        white.setColorAt(0, QColor(255, 255, 255, 0));
        white.setColorAt(1, Qt::white);
        painter.setBrush(white);
        painter.drawRoundedRect(area(), 2, 2);
    }
    painter.setBrush(Qt::NoBrush);
    const bool isFocused = hasFocus();
    painter.setPen(QPen(palette().color(isFocused ? QPalette::Highlight : QPalette::Mid), isFocused ? 2 : 1));
    painter.drawRoundedRect(isFocused ? area().adjusted(-2, -2, 2, 2) : area(), 2, 2);

    const QPointF mark(area().left() + m_place.x() * area().width(),
                       area().top() + m_place.y() * area().height());
    for (const auto &[color, width] : {std::pair(Qt::black, 4), std::pair(Qt::white, 2)}) {
        painter.setPen(QPen(color, width)); // can be seen on every color
        if (m_kind == HueAndSaturation) {
            painter.drawEllipse(mark, 5, 5);
        } else {
            const double x = std::clamp(mark.x(), area().left() + 2, area().right() - 2);
            painter.drawLine(QPointF(x, area().top() + 1), QPointF(x, area().bottom() - 1));
        }
    }
}

void ColorField::moveTo(const QPointF &point)
{
    m_place = clamped({(point.x() - area().left()) / area().width(),
                       m_kind == HueAndSaturation ? (point.y() - area().top()) / area().height() : 0.5});
    refresh();
    emit dragged();
}

void ColorField::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_isDragging = true;
    emit dragBegan();
    moveTo(event->position());
}

void ColorField::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isDragging) {
        moveTo(event->position());
    }
}

void ColorField::mouseReleaseEvent(QMouseEvent *)
{
    if (std::exchange(m_isDragging, false)) {
        emit dragEnded();
    }
}

void ColorField::step(double right, double down)
{
    const QPointF moved = clamped(m_place + QPointF(right, m_kind == HueAndSaturation ? down : 0));
    if (moved != m_place) {
        m_place = moved;
        refresh();
        emit stepped();
    }
}

void ColorField::keyPressEvent(QKeyEvent *event)
{
    const double size = event->modifiers() & Qt::ShiftModifier ? largeStep : smallStep;
    const double up = m_kind == HueAndSaturation ? 0 : size; // in a bar, up is more
    switch (event->key()) {
    case Qt::Key_Left:
        return step(-size, 0);
    case Qt::Key_Right:
        return step(size, 0);
    case Qt::Key_Up:
        return step(up, -size);
    case Qt::Key_Down:
        return step(-up, size);
    case Qt::Key_Home:
        return step(-1, 0);
    case Qt::Key_End:
        return step(1, 0);
    case Qt::Key_Escape:
        if (std::exchange(m_isDragging, false)) {
            emit dragCancelled();
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void ColorField::wheelEvent(QWheelEvent *event)
{
    const double steps = event->angleDelta().y() / 120.0;
    if (m_kind != HueAndSaturation && hasFocus()) {
        step(steps * smallStep, 0);
        event->accept();
    } else {
        event->ignore();
    }
}

void ColorField::hideEvent(QHideEvent *event)
{
    if (std::exchange(m_isDragging, false)) {
        emit dragEnded();
    }
    QWidget::hideEvent(event);
}

} // namespace Halvane::Corvex::Designer
