// SPDX-License-Identifier: MIT
#include "actions/KeysDialog.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/SearchLine.h"
#include "corvex/widgets/Theme.h"

#include "actions/WindowActions.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr QSize dialogSize(560, 520);

enum Column { TitleColumn, KeysColumn };

} // namespace

KeysDialog::KeysDialog(WindowActions &actions, QWidget *parent)
    : QDialog(parent)
    , m_actions(actions)
    , m_search(new SearchLine)
    , m_list(new QTreeWidget)
    , m_keys(new QKeySequenceEdit)
    , m_restore(new QPushButton(LocalizationHelper::coreString(u"Restore"_s)))
    , m_error(new QLabel)
{
    setWindowTitle(LocalizationHelper::coreString(u"Keys"_s));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHeaderLabels(
        {LocalizationHelper::coreString(u"Action"_s), LocalizationHelper::coreString(u"Keys"_s)});
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(TitleColumn, QHeaderView::Stretch);
    m_list->setAccessibleName(windowTitle());
    m_search->setView(m_list);
    m_keys->setAccessibleName(LocalizationHelper::coreString(u"New keys"_s));
    m_restore->setAutoDefault(false);
    m_error->setTextFormat(Qt::PlainText);
    Theme::setTextColor(m_error, Theme::error);
    auto *line = new QHBoxLayout;
    line->setSpacing(Theme::margin);
    line->addWidget(new QLabel(LocalizationHelper::coreString(u"New keys"_s)));
    line->addWidget(m_keys, 1);
    line->addWidget(m_restore);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin, 2 * Theme::margin);
    layout->setSpacing(Theme::margin);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    layout->addLayout(line);
    layout->addWidget(m_error);
    layout->addWidget(buttons);
    resize(dialogSize);
    fill();
    connect(m_search, &QLineEdit::textChanged, this, &KeysDialog::filter);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &KeysDialog::showCurrent);
    connect(m_keys, &QKeySequenceEdit::editingFinished, this, &KeysDialog::enter);
    connect(m_restore, &QPushButton::clicked, this, &KeysDialog::restore);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_search->setFocus();
}

void KeysDialog::fill()
{
    for (const QAction *action : m_actions.all()) {
        auto *item = new QTreeWidgetItem(m_list, {WindowActions::titleOf(action)});
        item->setIcon(TitleColumn, action->icon());
        item->setToolTip(TitleColumn, WindowActions::tipOf(action));
        showKeys(m_list->indexOfTopLevelItem(item));
    }
}

//! Keys that the user has chosen are bold.
void KeysDialog::showKeys(int row)
{
    const QAction *action = m_actions.all().at(row);
    QTreeWidgetItem *item = m_list->topLevelItem(row);
    item->setText(KeysColumn, QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText));
    QFont font = item->font(KeysColumn);
    font.setBold(WindowActions::hasOwnKeys(action));
    item->setFont(KeysColumn, font);
}

void KeysDialog::filter(const QString &text)
{
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        QTreeWidgetItem *item = m_list->topLevelItem(row);
        item->setHidden(!item->text(TitleColumn).contains(text, Qt::CaseInsensitive)
                        && !item->text(KeysColumn).contains(text, Qt::CaseInsensitive));
    }
}

QAction *KeysDialog::current() const
{
    return m_actions.all().value(m_list->indexOfTopLevelItem(m_list->currentItem()));
}

void KeysDialog::showCurrent()
{
    const QAction *action = current();
    m_keys->setEnabled(action);
    m_keys->setKeySequence(action ? action->shortcut() : QKeySequence());
    m_restore->setEnabled(action && WindowActions::hasOwnKeys(action));
    m_error->clear();
}

void KeysDialog::enter()
{
    QAction *action = current();
    const QKeySequence keys = m_keys->keySequence();
    if (!action || keys == action->shortcut()) {
        return;
    }
    if (const QAction *user = m_actions.userOf(keys, action)) {
        m_error->setText(LocalizationHelper::coreString(u"\"%1\" has these keys already."_s)
                             .arg(WindowActions::titleOf(user)));
        return;
    }
    m_actions.setKeys(action, u""_s + keys.toString(QKeySequence::PortableText));
    showKeys(m_list->indexOfTopLevelItem(m_list->currentItem()));
    showCurrent();
}

void KeysDialog::restore()
{
    m_actions.setKeys(current(), {});
    showKeys(m_list->indexOfTopLevelItem(m_list->currentItem()));
    showCurrent();
}

} // namespace Halvane::Corvex::Nova
