// SPDX-License-Identifier: MIT
#include "corvex/preview/window/ProblemsModel.h"

#include "corvex/preview/state/ProblemLog.h"

namespace Halvane::Corvex::Preview {

void ProblemsModel::setLog(ProblemLog *log)
{
    beginResetModel();
    m_log = log;
    m_rows = log ? int(log->problems().size()) : 0;
    endResetModel();
    if (log) {
        connect(log, &ProblemLog::changed, this, &ProblemsModel::update);
    }
}

void ProblemsModel::update(qsizetype index)
{
    if (index < 0) {
        beginResetModel();
        m_rows = 0;
        endResetModel();
    } else if (index < m_rows) {
        emit dataChanged(this->index(int(index), 0), this->index(int(index), Count));
    } else {
        beginInsertRows({}, m_rows, m_rows);
        ++m_rows;
        endInsertRows();
    }
}

int ProblemsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int ProblemsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ProblemsModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    const PanelProblem &problem = m_log->problems().at(index.row());
    return index.column() == Element   ? QVariant(problem.element)
           : index.column() == Message ? QVariant(problem.message)
                                       : QVariant(problem.count);
}

QVariant ProblemsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == Element ? tr("Element") : section == Message ? tr("Problem") : tr("Times");
}

} // namespace Halvane::Corvex::Preview
