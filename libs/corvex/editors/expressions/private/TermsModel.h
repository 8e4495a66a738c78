// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/expressions/private/ExpressionScope.h"

#include <QAbstractTableModel>

namespace Halvane::Corvex::Designer {

//! The terms of an expression as they are stored, one per row: kind, type and value.
class TermsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { KindColumn, TypeColumn, ValueColumn, ColumnCount };
    enum Role { ChoicesRole = Qt::UserRole + 1 }; //!< the words that a cell can have; none for free text
    using QAbstractTableModel::QAbstractTableModel;

    void setScope(const ExpressionScope &scope) { m_scope = scope; }
    void setTerms(const GeneralDataList &terms);
    const GeneralDataList &terms() const { return m_terms; }

    //! Adds an empty constant before the row.
    void add(int row);
    void remove(int row);
    //! Returns false at the end of the list.
    bool move(int row, int by);

    //! A term in words, such as "operator ==", for messages.
    static QString described(const GeneralDataInfo &term);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    void termsChanged();

private:
    void replace(int row, const GeneralDataInfo &term);

    ExpressionScope m_scope;
    GeneralDataList m_terms;
};

} // namespace Halvane::Corvex::Designer
