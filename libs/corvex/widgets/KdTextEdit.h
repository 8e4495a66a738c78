// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QPlainTextEdit>

namespace Halvane::Corvex::Designer {

/*! A field of several lines for a value that exists elsewhere, as KdLineEdit is for one line. It grows with
   its text up to some lines. Enter begins a new line; Ctrl+Enter, Tab and a click elsewhere complete an
   entry, Escape restores the shown text.
*/
class CORVEX_EXPORT KdTextEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit KdTextEdit(QWidget *parent = nullptr);

    //! The text of the value. Replaces what the user has typed.
    void setShownText(const QString &text);
    const QString &shownText() const { return m_shownText; }
    //! Whether the user has typed something that was neither accepted nor restored.
    bool hasEntry() const { return m_hasEntry; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void edited();
    void entered();
    void restored();
    //! The height for the text has changed.
    void heightChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void complete();
    void updateHeight();

    QString m_shownText;
    int m_lines = 1;
    bool m_hasEntry = false;
    bool m_isShowing = false;
};

} // namespace Halvane::Corvex::Designer
