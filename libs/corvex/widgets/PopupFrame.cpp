// SPDX-License-Identifier: MIT
#include "corvex/widgets/PopupFrame.h"

#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace Halvane::Corvex::Designer {

PopupFrame::PopupFrame(QWidget *field)
    : QFrame(field, Qt::Popup)
    , m_field(field)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
}

void PopupFrame::open()
{
    ensurePolished();
    adjustSize();
    const QRect field(m_field->mapToGlobal(QPoint(0, 0)), m_field->size());
    const QRect screen = m_field->screen()->availableGeometry();
    QPoint place(field.left(), field.bottom() + 2);
    if (place.y() + height() > screen.bottom() && field.top() - height() - 2 >= screen.top()) {
        place.setY(field.top() - height() - 2); // above the field
    }
    place.setX(std::max(screen.left(), std::min(place.x(), screen.right() - width())));
    move(place);
    show();
    focusNextChild();
}

void PopupFrame::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QFrame::keyPressEvent(event);
}

void PopupFrame::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    if (m_field && !event->spontaneous()) {
        m_field->setFocus(Qt::PopupFocusReason);
    }
}

} // namespace Halvane::Corvex::Designer
