// SPDX-License-Identifier: MIT
#include "actions/CommandPalette.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/SearchLine.h"
#include "corvex/widgets/Theme.h"

#include "actions/WindowActions.h"
#include "window/MainWindow.h"

#include <QAction>
#include <QListView>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr QSize paletteSize(520, 360);
constexpr int keysRole = Qt::UserRole + 1;
constexpr int numberRole = Qt::UserRole + 2;

//! Draws the keys of an action at the right edge.
class KeysDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const bool isSelected = item.state.testFlag(QStyle::State_Selected);
        painter->setPen(isSelected ? item.palette.color(QPalette::HighlightedText)
                                   : Theme::muted(item.palette));
        painter->drawText(item.rect.adjusted(0, 0, -Theme::margin, 0), Qt::AlignRight | Qt::AlignVCenter,
                          index.data(keysRole).toString());
    }
};

//! How well a title fits what was typed: lower is better, -1 not at all.
int rankOf(const QString &title, const QString &text)
{
    if (title.startsWith(text, Qt::CaseInsensitive)) {
        return 0;
    }
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    const bool hasAll = std::ranges::all_of(
        words, [&title](const QString &word) { return title.contains(word, Qt::CaseInsensitive); });
    return hasAll ? 1 : -1;
}

} // namespace

CommandPalette::CommandPalette(const WindowActions &actions, QWidget *parent)
    : QDialog(parent)
    , m_all(actions.all())
    , m_model(new QStandardItemModel(this))
    , m_search(new SearchLine)
    , m_view(new QListView)
{
    setWindowTitle(LocalizationHelper::coreString(u"Commands"_s));
    m_search->setPlaceholderText(LocalizationHelper::coreString(u"Name of an action"_s));
    m_search->setView(m_view);
    m_view->setModel(m_model);
    m_view->setItemDelegate(new KeysDelegate(this));
    m_view->setUniformItemSizes(true);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setAccessibleName(windowTitle());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    layout->setSpacing(Theme::margin);
    layout->addWidget(m_search);
    layout->addWidget(m_view, 1);
    resize(paletteSize);
    connect(m_search, &QLineEdit::textChanged, this, &CommandPalette::filter);
    connect(m_search, &SearchLine::chosen, this, &CommandPalette::run);
    connect(m_view, &QListView::clicked, this, &CommandPalette::run);
    filter({});
}

void CommandPalette::open(MainWindow &window)
{
    auto *palette = new CommandPalette(window.actions(), &window);
    palette->setAttribute(Qt::WA_DeleteOnClose);
    palette->QDialog::open();
}

void CommandPalette::filter(const QString &text)
{
    QList<std::pair<int, int>> found; // rank and number
    for (int number = 0; number < m_all.size(); ++number) {
        const int rank = rankOf(WindowActions::titleOf(m_all.at(number)), text.trimmed());
        if (rank >= 0) {
            found.append({rank, number});
        }
    }
    std::ranges::stable_sort(found);
    m_model->clear();
    for (const auto &[rank, number] : std::as_const(found)) {
        const QAction *action = m_all.at(number);
        auto *item = new QStandardItem(action->icon(), WindowActions::titleOf(action));
        item->setToolTip(WindowActions::tipOf(action));
        item->setData(action->shortcut().toString(QKeySequence::NativeText), keysRole);
        item->setData(number, numberRole);
        item->setEnabled(action->isEnabled());
        m_model->appendRow(item);
    }
    m_view->setCurrentIndex(m_model->index(0, 0));
}

void CommandPalette::run(const QModelIndex &index)
{
    QAction *action = m_all.at(index.data(numberRole).toInt());
    if (action->isEnabled()) {
        close();
        action->trigger();
    }
}

} // namespace Halvane::Corvex::Nova
