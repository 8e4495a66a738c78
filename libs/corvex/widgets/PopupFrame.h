// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QFrame>
#include <QPointer>

namespace Halvane::Corvex::Designer {

//! A frame that opens beneath a field and is deleted when it is closed: by Escape, by a click elsewhere, or
//! with the field. The field then has the focus again.
class CORVEX_EXPORT PopupFrame : public QFrame
{
    Q_OBJECT

public:
    explicit PopupFrame(QWidget *field);

    //! Shows the frame, within the screen, and gives the focus to its first field.
    virtual void open();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QPointer<QWidget> m_field;
};

} // namespace Halvane::Corvex::Designer
