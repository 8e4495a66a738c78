// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QLineEdit>

namespace Halvane::Corvex::Designer {

/*! A field of one line for a value that exists elsewhere: it shows the value until the user types, and keeps
    what the user types until it is accepted or restored.

    Enter, Tab and a click elsewhere complete an entry, Escape restores the shown text. A field that nobody
    has typed into never completes an entry.
*/
class CORVEX_EXPORT KdLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit KdLineEdit(QWidget *parent = nullptr);

    //! The text of the value. Replaces what the user has typed.
    void setShownText(const QString &text);
    const QString &shownText() const { return m_shownText; }
    //! Replaces the text as typing does.
    void enterText(const QString &text);
    //! Whether the user has typed something that was neither accepted nor restored.
    bool hasEntry() const { return m_hasEntry; }

    //! Underlines the text as an error.
    void setInvalid(bool isInvalid);
    bool isInvalid() const { return m_isInvalid; }

signals:
    //! The user has typed something.
    void edited();
    //! The user has completed an entry.
    void entered();
    //! The user has pressed Escape; the field shows the value again.
    void restored();

protected:
    //! A text that is wider than the field is its tool tip, unless it has another one.
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void complete();
    bool isCut() const;

    QString m_shownText;
    bool m_hasEntry = false;
    bool m_isInvalid = false;
};

} // namespace Halvane::Corvex::Designer
