// SPDX-License-Identifier: MIT
#include "corvex/widgets/CellTable.h"

namespace Halvane::Corvex::Designer {

QString CellTable::continuedText(const QModelIndex &cell, int) const
{
    return cell.data(Qt::EditRole).toString();
}

QStringList CellTable::choices(const QModelIndex &) const
{
    return {};
}

bool CellTable::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || value == index.data(Qt::EditRole)) {
        return false;
    }
    enterCells({{index.row(), index.column(), value.toString()}});
    return true;
}

} // namespace Halvane::Corvex::Designer
