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

/*! What happens between pressing and releasing the mouse: items are moved, resized or turned on the canvas,
   and the model knows nothing of it until the end. Points are in the coordinates of the scene. Objects that
   go meanwhile are left out. */
class CORVEX_EXPORT CanvasGesture
{
public:
    static CanvasGesture move(const QList<FramedItem *> &items, const QPointF &start);
    static CanvasGesture resize(const FramedItem &item, QQuickItem::TransformOrigin handle,
                                const QPointF &start);
    static CanvasGesture turn(const FramedItem &item, const QPointF &start);

    //! Positions and sizes come in whole pixels of the item's surroundings, angles in whole degrees. Shift
    //! keeps the proportions and turns in steps of 15 degrees.
    void moveTo(const QPointF &point, Qt::KeyboardModifiers modifiers);
    //! The one command for all that was changed; null when nothing was.
    std::unique_ptr<UndoCommand> command();
    //! Ends the gesture and takes the items back to what the model says. After the command was done, the
    //! items that it was about follow the model already.
    void release(bool isDone);

private:
    enum class Kind { Move, Resize, Turn };
    struct Start
    {
        QPointer<DesignerObject> object;
        QPointF position; //!< of a moved item, where it was; of a resized one, from the mouse to the handle
        double angle;     //!< of a turned item, from the direction of the mouse to the rotation
        bool isInCommand = false;
    };

    CanvasGesture(Kind kind, const QPointF &start)
        : m_kind(kind)
        , m_start(start)
    { }
    void moveItem(FramedItem &item, const Start &start, const QPointF &point) const;
    void resizeItem(FramedItem &item, const Start &start, const QPointF &point) const;
    QString text() const;
    //! What moving or turning changes.
    SharedProperty movedProperty(const DesignerObject &object) const;

    Kind m_kind;
    QPointF m_start;
    QQuickItem::TransformOrigin m_handle = QQuickItem::Center;
    QList<Start> m_items;
};

} // namespace Halvane::Corvex::Designer
