// SPDX-License-Identifier: MIT
#include "corvex/editors/private/OriginPicture.h"

#include "corvex/widgets/AccessibleValue.h"
#include "corvex/widgets/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

constexpr int side = 3; //!< points in a row
constexpr int edge = 8;
constexpr int cell = 18; //!< between two points
constexpr int pictureHeight = 2 * edge + 2 * cell;
constexpr int cellWidth = 24;
constexpr int radius = 3;
constexpr int center = 4;

} // namespace

OriginPicture::OriginPicture(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    AccessibleValue::set(this, {});
}

void OriginPicture::setPoint(int point)
{
    m_point = point;
    update();
}

QSize OriginPicture::sizeHint() const
{
    return {2 * edge + 2 * cellWidth, pictureHeight};
}

QPoint OriginPicture::placeOf(int point) const
{
    return {edge + point % side * cellWidth, edge + point / side * cell};
}

void OriginPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : Theme::line(palette()));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(frame, 2, 2);
    painter.setPen(Theme::muted(palette()));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRect(placeOf(0), placeOf(side * side - 1)));
    for (int point = 0; point < side * side; ++point) {
        const bool isChosen = point == m_point;
        painter.setPen(isChosen ? palette().color(QPalette::Highlight) : Theme::muted(palette()));
        painter.setBrush(palette().color(isChosen && isEnabled() ? QPalette::Highlight : QPalette::Base));
        const int size = isChosen ? radius + 2 : radius;
        painter.drawEllipse(placeOf(point), size, size);
    }
}

void OriginPicture::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QPoint place = event->position().toPoint();
    const int column = std::clamp((place.x() - edge + cellWidth / 2) / cellWidth, 0, side - 1);
    const int line = std::clamp((place.y() - edge + cell / 2) / cell, 0, side - 1);
    emit clicked(line * side + column);
}

void OriginPicture::keyPressEvent(QKeyEvent *event)
{
    const int point = m_point < 0 ? center : m_point;
    int column = point % side;
    int line = point / side;
    switch (event->key()) {
    case Qt::Key_Left:
        --column;
        break;
    case Qt::Key_Right:
        ++column;
        break;
    case Qt::Key_Up:
        --line;
        break;
    case Qt::Key_Down:
        ++line;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    emit stepped(std::clamp(line, 0, side - 1) * side + std::clamp(column, 0, side - 1));
}

} // namespace Halvane::Corvex::Designer
