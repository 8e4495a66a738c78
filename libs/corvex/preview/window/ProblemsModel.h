// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>

namespace Halvane::Corvex::Preview {

class ProblemLog;

//! The log of problems: the element, the message and the number of occurrences.
class ProblemsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Element, Message, Count, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setLog(ProblemLog *log);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void update(qsizetype index);

    ProblemLog *m_log = nullptr;
    int m_rows = 0;
};

} // namespace Halvane::Corvex::Preview
