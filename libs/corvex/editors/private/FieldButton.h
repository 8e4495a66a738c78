// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/widgets/IconSet.h"

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

} // namespace Halvane::Corvex::Designer
