// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"
#include "corvex/editing/graphics/SnapLines.h"

#include <QList>
#include <QPointF>
#include <QPointer>
#include <QQuickItem>

#include <memory>
#include <optional>

class QGraphicsItem;

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

    //! From now on edges and middles snap to the targets; a rotation does not. Null ends that.
    void snapTo(const SnapLines::Targets *targets);
    //! Positions and sizes are rounded to whole pixels in the coordinates of the parent, angles to whole
    //! degrees. Shift moves along one axis, keeps the proportions, and rotates in steps of 15 degrees.
    //! \a tolerance is the largest distance from which something snaps.
    void moveTo(const QPointF &point, Qt::KeyboardModifiers modifiers, double tolerance = 0);
    //! What the items are in line with now.
    const SnapMarks &marks() const { return m_marks; }

    bool isMove() const { return m_kind == Kind::Move; }
    bool isTurn() const { return m_kind == Kind::Turn; }
    QList<DesignerObject *> objects() const;
    //! How far an item has moved, in the coordinates of its parent.
    QPoint wayOf(const QGraphicsItem &item) const;
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
    void moveItems(const QPointF &point, bool keepsAxis, double tolerance);
    void resizeItem(FramedItem &item, const Start &start, const QPointF &point, double tolerance);
    QPointF snappedCorner(const FramedItem &item, const QPointF &corner, double tolerance) const;
    QString text() const;
    //! The property that moving or rotating changes.
    SharedProperty movedProperty(const DesignerObject &object) const;

    Kind m_kind;
    QPointF m_start;
    QQuickItem::TransformOrigin m_handle = QQuickItem::Center;
    QList<Start> m_items;
    QRectF m_area; //!< the frames of all items at the start of a move
    QPointF m_way; //!< of a move
    std::optional<SnapLines> m_snapLines;
    SnapMarks m_marks;
};

} // namespace Halvane::Corvex::Designer
