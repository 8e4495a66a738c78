// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/widgets/IconSet.h"

#include <QLabel>
#include <QToolButton>

namespace Halvane::Corvex::Designer {

//! A small square button beside a field.
class FieldButton : public QToolButton
{
public:
    FieldButton(IconSet::Icon icon, const QString &toolTip, QWidget *parent);

    //! Alt+Down and F4 in the field click the button, as in a combo box.
    void openFrom(QWidget *field);

    QSize sizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};

//! A text beneath a field that helps with the entry. Hidden while it is empty.
class HintLabel : public QLabel
{
public:
    using Role = QColor (*)(const QPalette &palette);

    HintLabel(Role role, QWidget *parent);

    //! Returns whether this changes what the label shows, and thus perhaps its height.
    bool setHint(const QString &text);
};

} // namespace Halvane::Corvex::Designer
