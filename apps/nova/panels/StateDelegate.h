// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/graphics/CanvasState.h"

#include "panels/ObjectDelegate.h"

#include <optional>

namespace Halvane::Corvex::Nova {

class Workspace;

//! Also shows whether an element is hidden or locked on the canvas, at the end of its row. A click on one of
//! the two icons changes it.
class StateDelegate : public ObjectDelegate
{
    Q_OBJECT

public:
    //! The workspace must outlive the delegate.
    explicit StateDelegate(Workspace &workspace, QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

    //! The place of the icon for the flag in a row.
    static QRect placeOf(Designer::CanvasState::Flag flag, const QRect &row);

private:
    std::optional<Designer::CanvasState::Flag> flagAt(const QPoint &place, const QRect &row,
                                                      const QModelIndex &index) const;

    Workspace &m_workspace;
};

} // namespace Halvane::Corvex::Nova
