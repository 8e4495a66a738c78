// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QList>

namespace Halvane::Corvex::Preview {

class Panel;
class Variable;

//! The variables of a panel with their values, which can be edited.
class VariablesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Type, Value, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setPanel(Panel *panel);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void add(Variable *variable);

    Panel *m_panel = nullptr;
    QList<Variable *> m_variables;
    QHash<const Variable *, int> m_rows;
};

} // namespace Halvane::Corvex::Preview
