// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <QList>
#include <QPointF>
#include <QPointer>
#include <QQuickItem>

#include <memory>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class FramedItem;
class UndoCommand;

//! Moves, resizes or rotates items on the canvas from the press to the release of the mouse; the model
//! changes only at the end. All points are in scene coordinates. Objects that are deleted meanwhile are
//! skipped.
class CORVEX_EXPORT CanvasGesture
{
public:
    static CanvasGesture move(const QList<FramedItem *> &items, const QPointF &start);
    static CanvasGesture resize(const FramedItem &item, QQuickItem::TransformOrigin handle,
                                const QPointF &start);
    static CanvasGesture turn(const FramedItem &item, const QPointF &start);

    //! Positions and sizes are rounded to whole pixels in the coordinates of the parent, angles to whole
    //! degrees. Shift keeps the proportions, and rotates in steps of 15 degrees.
    void moveTo(const QPointF &point, Qt::KeyboardModifiers modifiers);
    //! A single command for all changes; null if nothing has changed.
    std::unique_ptr<UndoCommand> command();
    //! Ends the gesture and resets the items to the values in the model. If the command was done, its items
    //! already show those values.
    void release(bool isDone);

private:
    enum class Kind { Move, Resize, Turn };
    struct Start
    {
        QPointer<DesignerObject> object;
        QPointF position; //!< for a move, the initial position of the item; for a resize, the vector from the
                          //!< mouse to the handle
        double angle;     //!< for a rotation, the angle between the direction of the mouse and the item's
                          //!< rotation
        bool isInCommand = false;
    };

    CanvasGesture(Kind kind, const QPointF &start)
        : m_kind(kind)
        , m_start(start)
    { }
    void moveItem(FramedItem &item, const Start &start, const QPointF &point) const;
    void resizeItem(FramedItem &item, const Start &start, const QPointF &point) const;
    QString text() const;
    //! The property that moving or rotating changes.
    SharedProperty movedProperty(const DesignerObject &object) const;

    Kind m_kind;
    QPointF m_start;
    QQuickItem::TransformOrigin m_handle = QQuickItem::Center;
    QList<Start> m_items;
};

} // namespace Halvane::Corvex::Designer
