// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace Halvane::Corvex::Nova {

//! Adds the icon of its class to each object of an ObjectTreeModel, and marks objects with problems.
class ObjectDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace Halvane::Corvex::Nova
