// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QAbstractTableModel>

namespace Halvane::Corvex::Designer {

//! A text for a cell of a CellTable.
struct CellText
{
    int row = 0;
    int column = 0;
    QString text;

    bool operator==(const CellText &) const = default;
};

/*! A table that users fill like a spreadsheet, for KdTableView. Whatever changes several cells at once, such
   as pasting, is one call and so one edit.
*/
class CORVEX_EXPORT CellTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    //! Enters texts as typing does. Rows after the last one are added.
    virtual void enterCells(const QList<CellText> &cells) = 0;
    //! Adds a row before the row \a before and fills it with what probably comes next.
    virtual void addRow(int before) = 0;
    //! The rows are in ascending order.
    virtual void deleteRows(const QList<int> &rows) = 0;
    //! The text for the cell that is \a steps rows below, when a column is filled from this cell downwards.
    virtual QString continuedText(const QModelIndex &cell, int steps) const;
    //! What may be entered in the cell; empty if anything may.
    virtual QStringList choices(const QModelIndex &cell) const;

    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
};

} // namespace Halvane::Corvex::Designer
