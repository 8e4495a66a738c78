// SPDX-License-Identifier: MIT
#include "panels/StateDelegate.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/project/elements/VisualElement.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include "project/Workspace.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr CanvasState::Flag flags[] = {CanvasState::Hidden, CanvasState::Locked};
constexpr double faint = 0.45;

VisualElement *elementOf(const QModelIndex &index)
{
    return kindCast<VisualElement>(index.data(ObjectTreeModel::ObjectRole).value<DesignerObject *>());
}

QString tipOf(CanvasState::Flag flag, bool isOn)
{
    if (flag == CanvasState::Hidden) {
        return LocalizationHelper::coreString(isOn ? u"Show on the canvas"_s : u"Hide on the canvas"_s);
    }
    return LocalizationHelper::coreString(isOn ? u"Unlock on the canvas"_s : u"Lock on the canvas"_s);
}

void paintFlag(QPainter &painter, CanvasState::Flag flag, bool isOn, const QRect &place)
{
    const bool isEye = flag == CanvasState::Hidden;
    const IconSet::Icon icon = isEye ? IconSet::Eye : isOn ? IconSet::Lock : IconSet::Unlock;
    painter.save();
    painter.setOpacity(isOn ? 1 : faint);
    IconSet::icon(icon).paint(&painter, place);
    if (isEye && isOn) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawLine(place.bottomLeft() + QPoint(2, -2), place.topRight() + QPoint(-2, 2));
    }
    painter.restore();
}

} // namespace

StateDelegate::StateDelegate(Workspace &workspace, QObject *parent)
    : ObjectDelegate(parent)
    , m_workspace(workspace)
{ }

QRect StateDelegate::placeOf(CanvasState::Flag flag, const QRect &row)
{
    constexpr int step = IconSet::size + Theme::gap;
    const int fromRight = flag == CanvasState::Locked ? step : 2 * step;
    return {row.right() - fromRight, row.center().y() - IconSet::size / 2 + 1, IconSet::size, IconSet::size};
}

void StateDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    const VisualElement *element = elementOf(index);
    ObjectDelegate::paint(painter, option, index);
    if (!element) {
        return;
    }
    const CanvasState::Flags state = CanvasState::of(element);
    const bool isUsed = option.state.testFlag(QStyle::State_MouseOver);
    for (const CanvasState::Flag flag : flags) {
        const QRect place = placeOf(flag, option.rect);
        if (state.testFlag(flag) || isUsed) {
            painter->setPen(option.palette.color(QPalette::Text));
            paintFlag(*painter, flag, state.testFlag(flag), place);
        }
    }
}

std::optional<CanvasState::Flag> StateDelegate::flagAt(const QPoint &place, const QRect &row,
                                                       const QModelIndex &index) const
{
    if (elementOf(index)) {
        for (const CanvasState::Flag flag : flags) {
            if (placeOf(flag, row).contains(place)) {
                return flag;
            }
        }
    }
    return std::nullopt;
}

bool StateDelegate::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                                const QModelIndex &index)
{
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const auto *mouse = isPress ? static_cast<QMouseEvent *>(event) : nullptr;
    const auto flag = mouse ? flagAt(mouse->position().toPoint(), option.rect, index) : std::nullopt;
    if (!flag) {
        return ObjectDelegate::editorEvent(event, model, option, index);
    }
    VisualElement *element = elementOf(index);
    m_workspace.setFlag({element}, *flag, !CanvasState::of(element).testFlag(*flag));
    return true;
}

bool StateDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                              const QModelIndex &index)
{
    if (const auto flag = flagAt(event->pos(), option.rect, index)) {
        const bool isOn = CanvasState::of(elementOf(index)).testFlag(*flag);
        QToolTip::showText(event->globalPos(), tipOf(*flag, isOn), view);
        return true;
    }
    return ObjectDelegate::helpEvent(event, view, option, index);
}

} // namespace Halvane::Corvex::Nova
