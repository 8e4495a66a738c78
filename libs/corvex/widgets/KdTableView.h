// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QTableView>

namespace Halvane::Corvex::Designer {

class CellTable;

/*! A table that is filled like a spreadsheet: Ctrl+C copies the selected cells as text with tabs, Ctrl+V
   pastes such text from the current cell on, Ctrl+D fills the selected columns downwards from the first row,
    Delete empties the cells or, if entire rows are selected, deletes the rows, Insert adds a row.

    The height is that of the rows, up to a limit; then the table scrolls.
*/
class CORVEX_EXPORT KdTableView : public QTableView
{
    Q_OBJECT

public:
    explicit KdTableView(QWidget *parent = nullptr);

    //! The model must be set with this function. Not owned.
    void setTable(CellTable *table);
    void setMostRows(int rows) { m_mostRows = rows; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {80, sizeHint().height()}; }

public slots:
    void copy();
    void paste();
    void fillDown();
    //! Adds a row after the current one.
    void addRow();
    void deleteSelectedRows();

signals:
    //! sizeHint() has changed.
    void heightChanged();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    static bool isOwnKey(const QKeyEvent &event);
    void clearCells();

    CellTable *m_table = nullptr;
    int m_mostRows = 8;
};

} // namespace Halvane::Corvex::Designer
