// SPDX-License-Identifier: MIT
#include "corvex/editors/changes/RulesDialog.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editors/changes/private/ChangesTable.h"
#include "corvex/widgets/DiscardQuestion.h"
#include "corvex/widgets/Theme.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

RulesDialog::RulesDialog(const SharedProperty &property, QWidget *parent)
    : QDialog(parent)
    , m_property(property)
    , m_table(new ChangesTable)
    , m_problem(new QLabel(this))
{
    auto *page = new QWidget;
    auto *lines = new QVBoxLayout(page);
    lines->setSizeConstraint(QLayout::SetMinimumSize); // the area scrolls instead of squeezing the rules
    lines->setContentsMargins(0, 0, Theme::margin, 0);
    lines->addWidget(m_table);
    lines->addStretch();
    auto *area = new QScrollArea(this);
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->setObjectName(u"error"_s);
    Theme::setTextColor(m_problem, &Theme::error);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &RulesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &RulesDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin);
    layout->setSpacing(Theme::margin);
    layout->addWidget(area, 1);
    layout->addWidget(m_problem);
    layout->addWidget(buttons);
    for (const char *key : {"Ctrl+Return", "Ctrl+Enter"}) {
        auto *shortcut = new QShortcut(QKeySequence(QLatin1StringView(key)), this);
        connect(shortcut, &QShortcut::activated, this, &RulesDialog::accept);
    }
    connect(m_table, &ChangesTable::entered, this, [this] { m_problem->setText(problem()); });
    resize(640, 420);
    m_table->setFocus();
}

bool RulesDialog::setStored(const QString &stored)
{
    const std::optional<QList<ChangeLine>> lines = ChangeLines::read(*m_property, stored);
    if (lines) {
        m_stored = stored;
        m_shown = stored;
        m_table->showLines(m_property, LocalizationHelper::coreString(u"Rules"_s), *lines);
    }
    return lines.has_value();
}

//! What is wrong with the rules. Without a problem they are stored.
QString RulesDialog::problem()
{
    const ChangeLines::Writing writing = ChangeLines::write(*m_property, m_table->lines());
    if (writing.error.isEmpty()) {
        m_stored = writing.stored;
    }
    return writing.error;
}

void RulesDialog::discard()
{
    QDialog::reject();
}

void RulesDialog::reject()
{
    m_table->complete();
    if (m_table->lines() == ChangeLines::read(*m_property, m_shown)) {
        discard();
    } else {
        DiscardQuestion::open(this, LocalizationHelper::coreString(u"Discard the changes to the rules?"_s),
                              [this] { discard(); });
    }
}

void RulesDialog::accept()
{
    m_table->complete();
    QString reason = problem();
    if (const int line = reason.isEmpty() ? m_table->firstIncomplete() : 0) {
        reason = LocalizationHelper::coreString(
                     u"Rule %1 is not complete. It needs a condition and an effect, or remove it."_s)
                     .arg(line);
    }
    m_problem->setText(reason);
    if (reason.isEmpty()) {
        QDialog::accept();
    }
}

} // namespace Halvane::Corvex::Designer
