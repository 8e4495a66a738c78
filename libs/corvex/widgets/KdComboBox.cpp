// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdComboBox.h"

#include "corvex/widgets/AccessibleValue.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

namespace Halvane::Corvex::Designer {

KdComboBox::KdComboBox(QWidget *parent)
    : QComboBox(parent)
{
    // A long item must not widen the panel.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(4);
    const auto describe = [this] { AccessibleValue::set(this, currentText(), QAccessible::ComboBox); };
    describe(); // Qt passes the text as the name
    connect(this, &QComboBox::currentIndexChanged, this, describe);
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (m_isStepping) {
            emit stepped(index);
        } else {
            emit chosen(index);
        }
    });
}

void KdComboBox::keyPressEvent(QKeyEvent *event)
{
    const QScopedValueRollback stepping(m_isStepping, true);
    QComboBox::keyPressEvent(event);
}

void KdComboBox::wheelEvent(QWheelEvent *event)
{
    const QScopedValueRollback stepping(m_isStepping, true);
    QComboBox::wheelEvent(event);
}

} // namespace Halvane::Corvex::Designer
