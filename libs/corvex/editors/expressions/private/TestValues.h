// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/expressions/private/ExpressionScope.h"

#include <QAbstractTableModel>
#include <QHash>

namespace Halvane::Corvex::Designer {

//! The names in an expression with the values that it is tried with: those of the running project, those of
//! the project, or what the user enters. Nothing is changed in the project.
class TestValues : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, ValueColumn, ColumnCount };
    using QAbstractTableModel::QAbstractTableModel;

    //! Entered values are kept for names that return.
    void follow(const ExpressionScope &scope, const GeneralDataList &terms);
    //! The entered values, by name.
    const QHash<QString, QString> &given() const { return m_given; }
    //! Shows the values again, after a change.
    void refresh();
    //! Whether one of the values is that of the running project.
    bool isLive() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    void valueEntered();

private:
    ExpressionScope m_scope;
    QList<GeneralDataInfo> m_names;
    QHash<QString, QString> m_given;
};

} // namespace Halvane::Corvex::Designer
