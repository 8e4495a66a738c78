// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdMessageBox.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int iconEdge = 32;
constexpr int textWidth = 420;
constexpr int detailsHeight = 160;

QIcon iconOf(KdMessageBox::Kind kind)
{
    switch (kind) {
    case KdMessageBox::Warning:
        return IconSet::icon(IconSet::Warning);
    case KdMessageBox::Error:
        return IconSet::icon(IconSet::Error);
    case KdMessageBox::Question:
        return IconSet::icon(IconSet::Question);
    case KdMessageBox::Note:
        break;
    }
    return IconSet::icon(IconSet::Info);
}

} // namespace

KdMessageBox::KdMessageBox(const Message &message, const QStringList &answers, QWidget *parent)
    : QDialog(parent)
    , m_message(message)
{
    setWindowTitle(QApplication::applicationDisplayName());
    auto *icon = new QLabel;
    icon->setPixmap(iconOf(message.kind).pixmap(QSize(iconEdge, iconEdge), devicePixelRatioF()));
    icon->setAlignment(Qt::AlignTop);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(Theme::margin);
    QLabel *what = addText(message.what);
    QFont bold = what->font();
    bold.setBold(true);
    what->setFont(bold);
    texts->addWidget(what);
    if (!message.where.isEmpty()) {
        QLabel *where = addText(message.where);
        Theme::setTextColor(where, Theme::muted);
        texts->addWidget(where);
    }
    if (!message.remedy.isEmpty()) {
        texts->addWidget(addText(message.remedy));
    }
    auto *top = new QHBoxLayout;
    top->setSpacing(2 * Theme::margin);
    top->addWidget(icon);
    top->addLayout(texts, 1);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin);
    whole->setSpacing(2 * Theme::margin);
    whole->addLayout(top);

    auto *buttons = new QDialogButtonBox;
    if (!message.details.isEmpty()) {
        QWidget *details = makeDetails();
        whole->addWidget(details);
        QPushButton *toggle =
            buttons->addButton(LocalizationHelper::coreString(u"Details"_s), QDialogButtonBox::HelpRole);
        toggle->setCheckable(true);
        connect(toggle, &QPushButton::toggled, this, [this, details](bool on) {
            details->setVisible(on);
            adjustSize();
        });
    }
    QPushButton *copy =
        buttons->addButton(LocalizationHelper::coreString(u"Copy"_s), QDialogButtonBox::HelpRole);
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, [this] { QApplication::clipboard()->setText(text()); });
    const QStringList all =
        answers.isEmpty() ? QStringList{LocalizationHelper::coreString(u"OK"_s)} : answers;
    m_answer = int(all.size()) - 1;
    for (int number = 0; number < all.size(); ++number) {
        QPushButton *button = buttons->addButton(all.at(number), QDialogButtonBox::ActionRole);
        button->setDefault(number == 0);
        connect(button, &QPushButton::clicked, this, [this, number] {
            m_answer = number;
            accept();
        });
    }
    whole->addWidget(buttons);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

QLabel *KdMessageBox::addText(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QWidget *KdMessageBox::makeDetails()
{
    auto *details = new QPlainTextEdit(m_message.details);
    details->setReadOnly(true);
    details->setFixedHeight(detailsHeight);
    details->setAccessibleName(LocalizationHelper::coreString(u"Details"_s));
    details->hide();
    return details;
}

QString KdMessageBox::text() const
{
    QStringList parts{m_message.what, m_message.where, m_message.remedy, m_message.details};
    parts.removeAll(QString());
    return parts.join(u'\n');
}

int KdMessageBox::ask(QWidget *parent, const Message &message, const QStringList &answers)
{
    KdMessageBox box(message, answers, parent);
    box.exec();
    return box.answer();
}

void KdMessageBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        QApplication::clipboard()->setText(text());
    } else {
        QDialog::keyPressEvent(event);
    }
}

} // namespace Halvane::Corvex::Designer
