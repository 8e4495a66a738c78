// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace Halvane::Corvex::Designer {

//! A padlock that is closed while it is checked.
class LockButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit LockButton(QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
};

} // namespace Halvane::Corvex::Designer
