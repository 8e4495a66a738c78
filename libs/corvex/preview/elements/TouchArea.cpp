// SPDX-License-Identifier: MIT
#include "corvex/preview/elements/TouchArea.h"

#include <QMouseEvent>

namespace Halvane::Corvex::Preview {

TouchArea::TouchArea(QQuickItem *target)
    : QQuickItem(target)
    , m_target(target)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    connect(target, &QQuickItem::widthChanged, this, &TouchArea::follow);
    connect(target, &QQuickItem::heightChanged, this, &TouchArea::follow);
    follow();
}

void TouchArea::follow()
{
    setSize(m_target->size());
}

void TouchArea::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    m_isPressed = true;
    emit pressed();
}

void TouchArea::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isInside = contains(event->position());
    release();
    if (isInside) {
        emit clicked();
    }
}

void TouchArea::mouseUngrabEvent()
{
    release();
}

void TouchArea::release()
{
    if (m_isPressed) {
        m_isPressed = false;
        emit released();
    }
}

TouchArea *TouchTarget::makeArea()
{
    if (m_item && !m_area) {
        m_area = new TouchArea(m_item);
    }
    return m_area;
}

} // namespace Halvane::Corvex::Preview
