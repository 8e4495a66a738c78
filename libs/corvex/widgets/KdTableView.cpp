// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdTableView.h"

#include "corvex/widgets/CellTable.h"
#include "corvex/widgets/Theme.h"

#include <QClipboard>
#include <QCompleter>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <set>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A line with completion for cells with a choice.
class CellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &index) const override
    {
        auto *line = new QLineEdit(parent);
        line->setFrame(false);
        const QStringList choices = static_cast<const CellTable *>(index.model())->choices(index);
        if (!choices.isEmpty()) {
            auto *completer = new QCompleter(choices, line);
            completer->setCaseSensitivity(Qt::CaseInsensitive);
            completer->setFilterMode(Qt::MatchContains);
            line->setCompleter(completer);
        }
        return line;
    }
};

} // namespace

KdTableView::KdTableView(QWidget *parent)
    : QTableView(parent)
{
    const int line = Theme::fieldHeight(this);
    verticalHeader()->setMinimumSectionSize(line);
    verticalHeader()->setDefaultSectionSize(line);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setVisible(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setItemDelegate(new CellDelegate(this));
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                    | QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false); // Tab leaves the table; the arrow keys move in it
    setWordWrap(false);
}

void KdTableView::setTable(CellTable *table)
{
    m_table = table;
    setModel(table);
    const auto report = [this] {
        updateGeometry();
        emit heightChanged();
    };
    connect(table, &QAbstractItemModel::modelReset, this, report);
    connect(table, &QAbstractItemModel::rowsInserted, this, report);
    connect(table, &QAbstractItemModel::rowsRemoved, this, report);
}

QSize KdTableView::sizeHint() const
{
    const int rows = std::clamp(m_table ? m_table->rowCount() : 0, 1, m_mostRows);
    const bool needsBar = horizontalHeader()->length() > width() - 2 * frameWidth();
    return {300, horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize()
                     + 2 * frameWidth() + 2 + (needsBar ? horizontalScrollBar()->sizeHint().height() : 0)};
}

//! Tab continues in the next cell that can be edited.
void KdTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool isNext = hint == QAbstractItemDelegate::EditNextItem;
    if (!isNext && hint != QAbstractItemDelegate::EditPreviousItem) {
        QTableView::closeEditor(editor, hint);
        return;
    }
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    const QModelIndex current = currentIndex(); // its row may have moved with the new text
    const int columns = model()->columnCount();
    const int step = isNext ? 1 : -1;
    for (int cell = current.row() * columns + current.column() + step;
         cell >= 0 && cell < columns * model()->rowCount(); cell += step) {
        const QModelIndex index = model()->index(cell / columns, cell % columns);
        if (index.flags().testFlag(Qt::ItemIsEditable)) {
            setCurrentIndex(index);
            edit(index);
            return;
        }
    }
}

void KdTableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    if (event->oldSize().width() != event->size().width()) {
        updateGeometry();
        emit heightChanged();
    }
}

bool KdTableView::isOwnKey(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Paste)
           || event.key() == Qt::Key_Delete
           || (event.key() == Qt::Key_D && event.modifiers() == Qt::ControlModifier);
}

bool KdTableView::event(QEvent *event)
{
    // In the table, these keys are for cells, also if actions of the window have them.
    if (event->type() == QEvent::ShortcutOverride && m_table
        && isOwnKey(*static_cast<const QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void KdTableView::keyPressEvent(QKeyEvent *event)
{
    if (!m_table || state() == EditingState) {
        QTableView::keyPressEvent(event);
    } else if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::Paste)) {
        paste();
    } else if (event->key() == Qt::Key_D && event->modifiers() == Qt::ControlModifier) {
        fillDown();
    } else if (event->key() == Qt::Key_Insert) {
        addRow();
    } else if (event->key() == Qt::Key_Delete) {
        if (selectionModel()->selectedRows().isEmpty()) {
            clearCells();
        } else {
            deleteSelectedRows();
        }
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        edit(currentIndex());
    } else {
        QTableView::keyPressEvent(event);
    }
}

void KdTableView::copy()
{
    QString text;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= range.right(); ++column) {
                text += m_table->index(row, column).data(Qt::EditRole).toString();
                text += column == range.right() ? u'\n' : u'\t';
            }
        }
    }
    QGuiApplication::clipboard()->setText(text);
}

void KdTableView::paste()
{
    QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
    if (lines.constLast().isEmpty()) {
        lines.removeLast();
    }
    const int top = currentIndex().isValid() ? currentIndex().row() : m_table->rowCount();
    const int left = std::max(0, currentIndex().column());
    QList<CellText> cells;
    for (int row = 0; row < lines.size(); ++row) {
        const QStringList texts = QString(lines.at(row)).remove(u'\r').split(u'\t');
        for (int column = 0; column < texts.size() && left + column < m_table->columnCount(); ++column) {
            if (m_table->columnCount() > left + column) {
                cells.append({top + row, left + column, texts.at(column).trimmed()});
            }
        }
    }
    if (!cells.isEmpty()) {
        m_table->enterCells(cells);
    }
}

void KdTableView::fillDown()
{
    QList<CellText> cells;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int column = range.left(); column <= range.right(); ++column) {
            const QModelIndex first = m_table->index(range.top(), column);
            for (int row = range.top() + 1; row <= range.bottom(); ++row) {
                cells.append({row, column, m_table->continuedText(first, row - range.top())});
            }
        }
    }
    if (!cells.isEmpty()) {
        m_table->enterCells(cells);
    }
}

void KdTableView::clearCells()
{
    QList<CellText> cells;
    for (const QModelIndex &index : selectionModel()->selectedIndexes()) {
        if (index.flags() & Qt::ItemIsEditable) {
            cells.append({index.row(), index.column(), QString()});
        }
    }
    if (!cells.isEmpty()) {
        m_table->enterCells(cells);
    }
}

void KdTableView::addRow()
{
    const int row = currentIndex().isValid() ? currentIndex().row() + 1 : m_table->rowCount();
    m_table->addRow(row);
    setCurrentIndex(m_table->index(std::min(row, m_table->rowCount() - 1), 0));
}

void KdTableView::deleteSelectedRows()
{
    // Entire rows, if there are any, or else all rows with a selected cell.
    const QModelIndexList entire = selectionModel()->selectedRows();
    std::set<int> rows;
    for (const QModelIndex &index : entire.isEmpty() ? selectionModel()->selectedIndexes() : entire) {
        rows.insert(index.row());
    }
    if (!rows.empty()) {
        m_table->deleteRows(QList<int>(rows.cbegin(), rows.cend()));
    }
}

} // namespace Halvane::Corvex::Designer
