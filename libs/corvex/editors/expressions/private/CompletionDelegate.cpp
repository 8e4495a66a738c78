// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/CompletionDelegate.h"

#include "corvex/editors/expressions/private/ExpressionCompletions.h"
#include "corvex/widgets/Theme.h"

#include <QApplication>
#include <QPainter>

namespace Halvane::Corvex::Designer {

void CompletionDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const QString name = shown.text;
    shown.text.clear();
    const QStyle *style = shown.widget ? shown.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &shown, painter, shown.widget);

    const bool isSelected = shown.state.testFlag(QStyle::State_Selected);
    const QRect area = shown.rect.adjusted(Theme::gap, 0, -Theme::gap, 0);
    const int nameWidth =
        std::min(shown.fontMetrics.horizontalAdvance(name) + Theme::gap, area.width() * 2 / 3);
    painter->save();
    painter->setPen(shown.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(area, Qt::AlignVCenter | Qt::AlignLeft,
                      shown.fontMetrics.elidedText(name, Qt::ElideMiddle, nameWidth));
    painter->setPen(isSelected ? shown.palette.color(QPalette::HighlightedText)
                               : Theme::muted(shown.palette));
    const QRect rest = area.adjusted(nameWidth + 2 * Theme::margin, 0, 0, 0);
    painter->drawText(rest, Qt::AlignVCenter | Qt::AlignRight,
                      shown.fontMetrics.elidedText(index.data(ExpressionCompletions::DetailRole).toString(),
                                                   Qt::ElideRight, rest.width()));
    painter->restore();
}

QSize CompletionDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0, option.fontMetrics.height() + Theme::gap};
}

} // namespace Halvane::Corvex::Designer
