// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdNumberEdit.h"

#include "corvex/widgets/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr double fine = 0.1;
constexpr double coarse = 10;
constexpr int edge = 6; //!< from the frame to the unit
constexpr double notch = 120;

} // namespace

KdNumberEdit::KdNumberEdit(QWidget *parent)
    : KdLineEdit(parent)
{ }

void KdNumberEdit::setUnit(const QString &unit)
{
    if (m_unit != unit) {
        m_unit = unit;
        updateMargins();
    }
}

void KdNumberEdit::setSign(const QString &sign)
{
    m_sign = sign;
    updateMargins();
}

void KdNumberEdit::updateMargins()
{
    const auto room = [this](const QString &text) {
        return text.isEmpty() ? 0 : fontMetrics().horizontalAdvance(text) + edge;
    };
    setTextMargins(room(m_sign), 0, room(m_unit), 0);
    update();
}

double KdNumberEdit::stepFactor(Qt::KeyboardModifiers modifiers)
{
    return modifiers & Qt::ShiftModifier ? fine : modifiers & Qt::ControlModifier ? coarse : 1.0;
}

double KdNumberEdit::stepsOf(const QWheelEvent &event)
{
    // Shift or Alt turn the wheel sideways on some systems.
    const QPoint angle = event.angleDelta();
    const double notches = (angle.y() != 0 ? angle.y() : angle.x()) / notch;
    return notches * stepFactor(event.modifiers());
}

void KdNumberEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isUp = event->key() == Qt::Key_Up || event->key() == Qt::Key_PageUp;
    const bool isDown = event->key() == Qt::Key_Down || event->key() == Qt::Key_PageDown;
    if (!isUp && !isDown) {
        KdLineEdit::keyPressEvent(event);
        return;
    }
    if (m_hasSteps && !isReadOnly()) {
        const bool isPage = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
        emit stepRequested((isUp ? 1 : -1) * (isPage ? coarse : stepFactor(event->modifiers())));
    }
}

void KdNumberEdit::wheelEvent(QWheelEvent *event)
{
    if (!m_hasSteps || isReadOnly()) {
        event->ignore();
        return;
    }
    if (const double steps = stepsOf(*event); steps != 0) {
        emit stepRequested(steps);
    }
    event->accept();
}

void KdNumberEdit::paintEvent(QPaintEvent *event)
{
    KdLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setPen(Theme::muted(palette()));
    const QRect inside = rect().adjusted(edge, 0, -edge, 0);
    painter.drawText(inside, Qt::AlignVCenter | Qt::AlignLeft, m_sign);
    painter.drawText(inside, Qt::AlignVCenter | Qt::AlignRight, m_unit);
}

void KdNumberEdit::changeEvent(QEvent *event)
{
    KdLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        updateMargins();
    }
}

} // namespace Halvane::Corvex::Designer
