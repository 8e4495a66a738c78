// SPDX-License-Identifier: MIT
#include "corvex/widgets/DiscardQuestion.h"

#include <QAbstractButton>
#include <QDialog>
#include <QMessageBox>

namespace Halvane::Corvex::Designer {

void DiscardQuestion::open(QDialog *dialog, const QString &text, const std::function<void()> &discard)
{
    auto *question = new QMessageBox(QMessageBox::Question, dialog->windowTitle(), text,
                                     QMessageBox::Discard | QMessageBox::Cancel, dialog);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setDefaultButton(QMessageBox::Cancel);
    QObject::connect(question, &QMessageBox::buttonClicked, dialog,
                     [question, discard](QAbstractButton *button) {
                         if (question->standardButton(button) == QMessageBox::Discard) {
                             discard();
                         }
                     });
    question->open();
}

} // namespace Halvane::Corvex::Designer
