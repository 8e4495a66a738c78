// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/expressions/private/TermsModel.h"

#include <QStyledItemDelegate>
#include <QWidget>

class QTableView;

namespace Halvane::Corvex::Designer {

//! Offers the words of a cell in a list.
class ChoiceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
};

//! The terms of an expression in a table, with buttons. Insert, Delete and Alt with an arrow key do the same.
class TermsPage : public QWidget
{
    Q_OBJECT

public:
    explicit TermsPage(QWidget *parent = nullptr);

    TermsModel &model() { return *m_model; }
    const TermsModel &model() const { return *m_model; }
    //! The selected terms, in order.
    GeneralDataList selected() const;

signals:
    void selectionChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void add();
    void remove();
    void move(int by);
    int row() const;

    TermsModel *m_model;
    QTableView *m_table;
};

} // namespace Halvane::Corvex::Designer
