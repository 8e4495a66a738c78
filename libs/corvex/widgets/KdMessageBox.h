// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QDialog>
#include <QStringList>

class QLabel;

namespace Halvane::Corvex::Designer {

//! A message or a question: what happened, where, and what the user can do. Everything can be copied.
class CORVEX_EXPORT KdMessageBox : public QDialog
{
    Q_OBJECT

public:
    enum Kind { Note, Question, Warning, Error };
    struct Message
    {
        Kind kind = Note;
        QString what;    //!< one sentence
        QString where;   //!< such as a path; may be empty
        QString remedy;  //!< what the user can do; may be empty
        QString details; //!< shown on request; may be empty
    };

    //! The first answer is the default. Escape chooses the last one. Without answers there is a single "OK".
    explicit KdMessageBox(const Message &message, const QStringList &answers = {}, QWidget *parent = nullptr);

    //! The number of the chosen answer.
    int answer() const { return m_answer; }
    //! What "Copy" puts on the clipboard.
    QString text() const;

    //! Shows the message, waits, and returns the number of the answer.
    static int ask(QWidget *parent, const Message &message, const QStringList &answers = {});

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *addText(const QString &text);
    QWidget *makeDetails();

    Message m_message;
    int m_answer = 0;
};

} // namespace Halvane::Corvex::Designer
