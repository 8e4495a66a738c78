// SPDX-License-Identifier: MIT
#include "corvex/widgets/WheelGuard.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace Halvane::Corvex::Designer {

void WheelGuard::protect(QWidget *field)
{
    // One guard serves all fields. It lives as long as the application object.
    static QPointer<WheelGuard> guard;
    if (!guard) {
        guard = new WheelGuard(qApp);
    }
    field->installEventFilter(guard);
    if (field->focusPolicy() == Qt::WheelFocus) {
        field->setFocusPolicy(Qt::StrongFocus);
    }
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel) {
        auto *field = static_cast<QWidget *>(watched);
        if (!field->hasFocus() && !(field->focusWidget() && field->focusWidget()->hasFocus())) {
            event->ignore(); // so that it goes to the parent
            return true;
        }
    }
    return false;
}

} // namespace Halvane::Corvex::Designer
