// SPDX-License-Identifier: MIT
#include "corvex/editors/private/FieldButton.h"

#include "corvex/widgets/Theme.h"

#include <QKeyEvent>

namespace Halvane::Corvex::Designer {

FieldButton::FieldButton(IconSet::Icon icon, const QString &toolTip, QWidget *parent)
    : QToolButton(parent)
{
    setIcon(IconSet::icon(icon));
    setIconSize({IconSet::size, IconSet::size});
    setToolTip(toolTip);
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
}

void FieldButton::openFrom(QWidget *field)
{
    field->installEventFilter(this);
}

QSize FieldButton::sizeHint() const
{
    const int edge = Theme::fieldHeight(this);
    return {edge, edge};
}

bool FieldButton::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && isEnabled()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isAltDown = key->key() == Qt::Key_Down && key->modifiers().testFlag(Qt::AltModifier);
        if (isAltDown || key->key() == Qt::Key_F4) {
            click();
            return true;
        }
    }
    return false;
}

} // namespace Halvane::Corvex::Designer
