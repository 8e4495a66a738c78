// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/widgets/KdLineEdit.h"

#include <QStringList>

#include <functional>

class QCompleter;

namespace Halvane::Corvex::Designer {

//! A field for one of many names, which it offers while the user types, and all of them with the arrow key.
class NameLine : public KdLineEdit
{
    Q_OBJECT

public:
    //! \a names is called when the field gets the keyboard.
    NameLine(std::function<QStringList()> names, QWidget *parent = nullptr);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::function<QStringList()> m_names;
    QCompleter *m_completer = nullptr; //!< created with the first focus
};

} // namespace Halvane::Corvex::Designer
