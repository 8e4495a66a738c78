// SPDX-License-Identifier: MIT
#include "corvex/preview/window/VariablesModel.h"

#include "corvex/preview/Panel.h"

#include <QColor>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

void VariablesModel::setPanel(Panel *panel)
{
    beginResetModel();
    m_panel = panel;
    m_variables.clear();
    m_rows.clear();
    for (Variable *variable : panel ? panel->variables().variables() : QList<Variable *>()) {
        m_rows.insert(variable, int(m_variables.size()));
        m_variables.append(variable);
    }
    endResetModel();
    if (!panel) {
        return;
    }
    connect(&panel->variables(), &VariableStore::added, this, &VariablesModel::add);
    connect(&panel->variables(), &VariableStore::changed, this, [this](const Variable *variable) {
        const QModelIndex cell = index(m_rows.value(variable), Value);
        emit dataChanged(cell, cell);
    });
}

void VariablesModel::add(Variable *variable)
{
    const int row = int(m_variables.size());
    beginInsertRows({}, row, row);
    m_rows.insert(variable, row);
    m_variables.append(variable);
    endInsertRows();
}

int VariablesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_variables.size());
}

int VariablesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant VariablesModel::data(const QModelIndex &index, int role) const
{
    const Variable *variable = m_variables.at(index.row());
    const bool isBoolean = variable->type() == Common::EnumHelper::BooleanVariable;
    if (index.column() == Value && role == Qt::CheckStateRole && isBoolean) {
        return variable->value().toBool() ? Qt::Checked : Qt::Unchecked;
    }
    if (index.column() == Value && role == Qt::DecorationRole
        && variable->type() == Common::EnumHelper::ColorVariable) {
        return QColor(variable->text());
    }
    if (role == Qt::ToolTipRole && variable->isPersistent()) {
        return tr("Kept when the device is switched off");
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole) {
        return {};
    }
    return index.column() == Name   ? variable->name()
           : index.column() == Type ? Variable::nameOf(variable->type())
                                    : variable->text();
}

bool VariablesModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    Variable *variable = m_variables.at(index.row());
    const ScriptScope scope(*m_panel, variable->name());
    return role == Qt::CheckStateRole ? variable->setValue(value.toInt() == Qt::Checked)
                                      : variable->setValue(value);
}

Qt::ItemFlags VariablesModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.column() != Value) {
        return flags;
    }
    return m_variables.at(index.row())->type() == Common::EnumHelper::BooleanVariable
               ? flags | Qt::ItemIsUserCheckable
               : flags | Qt::ItemIsEditable;
}

QVariant VariablesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == Name ? tr("Variable") : section == Type ? tr("Type") : tr("Value");
}

} // namespace Halvane::Corvex::Preview
