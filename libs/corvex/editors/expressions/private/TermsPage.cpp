// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/TermsPage.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/Theme.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

QWidget *ChoiceDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    const QStringList choices = index.data(TermsModel::ChoicesRole).toStringList();
    if (choices.isEmpty()) {
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
    auto *box = new QComboBox(parent);
    box->addItems(choices);
    connect(box, &QComboBox::activated, this, [this, box] {
        auto *self = const_cast<ChoiceDelegate *>(this);
        emit self->commitData(box);
        emit self->closeEditor(box);
    });
    return box;
}

void ChoiceDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *box = qobject_cast<QComboBox *>(editor)) {
        box->setCurrentText(index.data(Qt::EditRole).toString());
    } else {
        QStyledItemDelegate::setEditorData(editor, index);
    }
}

void ChoiceDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (const auto *box = qobject_cast<QComboBox *>(editor)) {
        model->setData(index, box->currentText());
    } else {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}

TermsPage::TermsPage(QWidget *parent)
    : QWidget(parent)
    , m_model(new TermsModel(this))
    , m_table(new QTableView(this))
{
    m_table->setModel(m_model);
    m_table->setItemDelegate(new ChoiceDelegate(m_table));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::ContiguousSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->setDefaultSectionSize(Theme::fieldHeight(this));
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setAccessibleName(LocalizationHelper::coreString(u"Terms"_s));
    m_table->installEventFilter(this);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TermsPage::selectionChanged);
    // The keys work on the current row.
    connect(m_model, &TermsModel::modelReset, this, [this] {
        m_table->selectionModel()->setCurrentIndex(m_model->index(0, 0), QItemSelectionModel::NoUpdate);
    });

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::gap);
    const auto addButton = [&](const QString &title, const QString &key, auto slot) {
        auto *button = new QPushButton(LocalizationHelper::coreString(title), this);
        button->setAutoDefault(false);
        button->setToolTip(key);
        connect(button, &QPushButton::clicked, this, slot);
        buttons->addWidget(button);
    };
    addButton(u"Add"_s, u"Insert"_s, [this] { add(); });
    addButton(u"Remove"_s, u"Delete"_s, [this] { remove(); });
    addButton(u"Up"_s, u"Alt+Up"_s, [this] { move(-1); });
    addButton(u"Down"_s, u"Alt+Down"_s, [this] { move(1); });
    buttons->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Theme::gap);
    layout->addWidget(m_table);
    layout->addLayout(buttons);
    setFocusProxy(m_table);
}

int TermsPage::row() const
{
    return m_table->currentIndex().row();
}

GeneralDataList TermsPage::selected() const
{
    QList<int> rows;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows()) {
        rows.append(index.row());
    }
    std::ranges::sort(rows);
    GeneralDataList terms;
    for (const int selectedRow : rows) {
        terms.append(m_model->terms().at(selectedRow));
    }
    return terms;
}

void TermsPage::add()
{
    const int place = row() + 1;
    m_model->add(place);
    m_table->setCurrentIndex(m_model->index(place, TermsModel::ValueColumn));
}

void TermsPage::remove()
{
    if (row() >= 0) {
        m_model->remove(row());
    }
}

void TermsPage::move(int by)
{
    const int from = row();
    if (m_model->move(from, by)) {
        m_table->setCurrentIndex(m_model->index(from + by, TermsModel::ValueColumn));
    }
}

bool TermsPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isMoved = key->modifiers().testFlag(Qt::AltModifier);
        switch (key->key()) {
        case Qt::Key_Insert:
            add();
            return true;
        case Qt::Key_Delete:
            remove();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            if (isMoved) {
                move(key->key() == Qt::Key_Up ? -1 : 1);
                return true;
            }
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Halvane::Corvex::Designer
