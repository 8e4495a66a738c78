// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdSlider.h"

#include "corvex/widgets/KdNumberEdit.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace Halvane::Corvex::Designer {

namespace {

constexpr double page = 10;

} // namespace

KdSlider::KdSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{ }

int KdSlider::valueAt(int x) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const int handle = style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
    return QStyle::sliderValueFromPosition(minimum(), maximum(), x - handle / 2, width() - handle);
}

void KdSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(true);
    emit dragBegan();
    emit dragged(valueAt(event->position().toPoint().x()));
}

void KdSlider::mouseMoveEvent(QMouseEvent *event)
{
    const int value = valueAt(event->position().toPoint().x());
    if (isSliderDown() && value != this->value()) {
        emit dragged(value);
    }
}

void KdSlider::mouseReleaseEvent(QMouseEvent *)
{
    if (isSliderDown()) {
        setSliderDown(false);
        emit dragEnded();
    }
}

void KdSlider::keyPressEvent(QKeyEvent *event)
{
    const double factor = KdNumberEdit::stepFactor(event->modifiers());
    switch (event->key()) {
    case Qt::Key_Escape:
        if (isSliderDown()) {
            setSliderDown(false);
            emit dragCancelled();
        } else {
            event->ignore();
        }
        return;
    case Qt::Key_Up:
    case Qt::Key_Right:
        emit stepRequested(factor);
        return;
    case Qt::Key_Down:
    case Qt::Key_Left:
        emit stepRequested(-factor);
        return;
    case Qt::Key_PageUp:
        emit stepRequested(page);
        return;
    case Qt::Key_PageDown:
        emit stepRequested(-page);
        return;
    default:
        event->ignore();
    }
}

void KdSlider::wheelEvent(QWheelEvent *event)
{
    if (const double steps = KdNumberEdit::stepsOf(*event); steps != 0) {
        emit stepRequested(steps);
    }
    event->accept();
}

} // namespace Halvane::Corvex::Designer
