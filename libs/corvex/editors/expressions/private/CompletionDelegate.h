// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace Halvane::Corvex::Designer {

//! A row of a list of completions: the name, and at the right its type and value.
class CompletionDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace Halvane::Corvex::Designer
