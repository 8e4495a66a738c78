// SPDX-License-Identifier: MIT
#include "panels/ObjectDelegate.h"

#include "corvex/checks/Problem.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/inspector/ObjectTreeModel.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

namespace Halvane::Corvex::Nova {

using namespace Designer;

void ObjectDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto *object = index.data(ObjectTreeModel::ObjectRole).value<DesignerObject *>();
    option->icon = object ? IconSet::objectIcon(object->classNames()) : IconSet::icon(IconSet::Folder);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = QSize(IconSet::size, IconSet::size);
    const QVariant severity = index.data(ObjectTreeModel::SeverityRole);
    if (severity.isValid()) {
        const bool isError = severity.toInt() == int(Severity::Error);
        option->palette.setColor(QPalette::Text,
                                 isError ? Theme::error(option->palette) : Theme::warning(option->palette));
    }
}

} // namespace Halvane::Corvex::Nova
