// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/ExpressionDialog.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/Theme.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QShowEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

ExpressionDialog::ExpressionDialog(const SharedProperty &property, QWidget *parent)
    : QDialog(parent)
    , m_builder(new ExpressionBuilder(property, this))
{
    create();
}

ExpressionDialog::ExpressionDialog(const SharedProperty &property, const ExpressionPurpose &purpose,
                                   QWidget *parent)
    : QDialog(parent)
    , m_builder(new ExpressionBuilder(property, purpose, this))
{
    create();
}

void ExpressionDialog::create()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExpressionDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExpressionDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin);
    layout->setSpacing(2 * Theme::margin);
    layout->addWidget(m_builder, 1);
    layout->addWidget(buttons);
    for (const char *key : {"Ctrl+Return", "Ctrl+Enter"}) {
        auto *shortcut = new QShortcut(QKeySequence(QLatin1StringView(key)), this);
        connect(shortcut, &QShortcut::activated, this, &ExpressionDialog::accept);
    }
    // An expression with an error stays here, so that its text is not lost.
    const auto update = [this, ok = buttons->button(QDialogButtonBox::Ok)] {
        ok->setEnabled(m_builder->errorString().isEmpty());
    };
    connect(m_builder, &ExpressionBuilder::changed, this, update);
    resize(760, 520);
    m_builder->setFocus();
}

QString ExpressionDialog::contents() const
{
    const QString text = m_builder->text();
    return text.isNull() ? m_builder->stored() : text;
}

void ExpressionDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        m_shown = contents();
    }
    QDialog::showEvent(event);
}

void ExpressionDialog::accept()
{
    if (m_builder->errorString().isEmpty()) {
        QDialog::accept();
    }
}

void ExpressionDialog::discard()
{
    QDialog::reject();
}

void ExpressionDialog::reject()
{
    if (contents() == m_shown) {
        discard();
        return;
    }
    auto *question =
        new QMessageBox(QMessageBox::Question, windowTitle(),
                        LocalizationHelper::coreString(u"Discard the changes to the expression?"_s),
                        QMessageBox::Discard | QMessageBox::Cancel, this);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setDefaultButton(QMessageBox::Cancel);
    connect(question, &QMessageBox::buttonClicked, this, [this, question](QAbstractButton *button) {
        if (question->standardButton(button) == QMessageBox::Discard) {
            discard();
        }
    });
    question->open();
}

} // namespace Halvane::Corvex::Designer
