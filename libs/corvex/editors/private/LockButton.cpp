// SPDX-License-Identifier: MIT
#include "corvex/editors/private/LockButton.h"

#include "corvex/widgets/Theme.h"

#include <QPainter>
#include <QPainterPath>

namespace Halvane::Corvex::Designer {

namespace {

constexpr int buttonWidth = 22;

} // namespace

LockButton::LockButton(QWidget *parent)
    : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus); // a click leaves the entry of a field open
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LockButton::sizeHint() const
{
    return {buttonWidth, Theme::fieldHeight(this)};
}

void LockButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse() || hasFocus()) {
        painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : Theme::line(palette()));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    }
    const QColor color = !isEnabled()  ? palette().color(QPalette::Disabled, QPalette::WindowText)
                         : isChecked() ? palette().color(QPalette::Highlight)
                                       : Theme::muted(palette());
    painter.translate(QRectF(rect()).center());
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(-5, -1, 10, 7), 1, 1);
    // The shackle, turned to the side while the lock is open.
    painter.setPen(QPen(color, 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.translate(isChecked() ? 0 : 6, 0);
    QPainterPath shackle;
    shackle.moveTo(-3, -1);
    shackle.lineTo(-3, -3);
    shackle.arcTo(QRectF(-3, -6.5, 6, 7), 180, -180);
    shackle.lineTo(3, isChecked() ? -1 : -2.5);
    painter.drawPath(shackle);
}

void LockButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void LockButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace Halvane::Corvex::Designer
