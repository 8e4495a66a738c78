// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdComboBox.h"

#include "corvex/widgets/AccessibleValue.h"
#include "corvex/widgets/Theme.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyleOptionComboBox>

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

constexpr int fewestLetters = 4;

} // namespace

KdComboBox::KdComboBox(QWidget *parent)
    : QComboBox(parent)
{
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

//! Not setSizeAdjustPolicy(), which creates the list that opens: a panel has many boxes.
QSize KdComboBox::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize icon = iconSize() + QSize(4, 2);
    const QSize contents(fewestLetters * fontMetrics().horizontalAdvance(u'X') + icon.width(),
                         std::max(fontMetrics().height() + 2, icon.height()));
    const QSize needed = style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
    return {needed.width(), Theme::fieldHeight(this)};
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
