// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QComboBox>

namespace Halvane::Corvex::Designer {

//! A list to choose from that distinguishes a choice from a step of the wheel or of an arrow key, so that
//! steps in quick succession can be one step of the history.
class CORVEX_EXPORT KdComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit KdComboBox(QWidget *parent = nullptr);

    //! A long item does not widen the panel. As high as the other fields.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    //! The user has chosen an item from the list, even if it is the same.
    void chosen(int index);
    //! The user has stepped to another item.
    void stepped(int index);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool m_isStepping = false;
};

} // namespace Halvane::Corvex::Designer
