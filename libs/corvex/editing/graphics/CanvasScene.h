// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/graphics/CanvasGesture.h"

#include <QGraphicsScene>

#include <optional>

namespace Halvane::Corvex::Designer {

class CropArea;
class GraphicsBounding;
class Screen;
class SelectionOutline;
class UndoStack;

/*! The canvas of one screen: its items, the selection and the mouse interaction.

    A click selects the element under the mouse; a group counts as a whole. A double click selects inside the
    group. With Control pressed, a click adds to the selection or removes from it. Dragging moves the
    selection, its handles resize it, its grip rotates it, and dragging from an empty place selects everything
    that the rectangle touches. Releasing the mouse pushes one command onto the history of the screen's
    project. Escape cancels the gesture; so does a release if the screen has no project.
*/
class CORVEX_EXPORT CanvasScene : public QGraphicsScene
{
    Q_OBJECT

public:
    //! A screen can be on one canvas at a time. If it is deleted before the scene, the scene becomes empty.
    explicit CanvasScene(Screen *screen, QObject *parent = nullptr);
    ~CanvasScene() override;

    Screen *screen() const;
    QList<DesignerObject *> selectedObjects() const;
    //! Ignores elements that are not on the canvas.
    void selectObjects(const QList<DesignerObject *> &objects);
    //! Schedules an update of the selection outline.
    void outlineLater();
    bool isGestureActive() const { return m_gesture || m_crop; }
    void cancelGesture();
    enum Contents { Plain, WithSelection };
    //! The whole screen; null if its size does not allow a picture.
    QImage picture(Contents contents = WithSelection);
    //! The cursor for the action that the mouse would start at a point of the scene.
    Qt::CursorShape cursorAt(const QPointF &point) const;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    const QList<FramedItem *> &selectedItemsOnCanvas() const;
    FramedItem *singleSelectedItem() const;
    FramedItem *innermostAt(const QPointF &point) const;
    FramedItem *clickedAt(const QPointF &point) const;
    void select(FramedItem *item, bool adds);
    //! The items of those objects that can be selected on the canvas.
    QList<QGraphicsItem *> itemsOf(const QList<DesignerObject *> &objects) const;
    //! In one step, whatever their number.
    void selectItems(const QList<QGraphicsItem *> &items);
    void startMoving(const QPointF &point);
    void endGesture();
    void releaseGesture(bool isDone);
    void selectTouched(const QRectF &area);
    void onSelectionChanged();
    void outline();
    void connectHistory();
    void followHistory(const UndoStack &stack);

    QPointer<DesignerObject> m_screen;
    QPointer<UndoStack> m_history;
    std::optional<CanvasGesture> m_gesture;
    bool m_waitsForDrag = false; //!< the mouse has not yet moved far enough for a drag
    CropArea *m_crop = nullptr;
    SelectionOutline *m_outline;
    GraphicsBounding *m_bounding;
    mutable std::optional<QList<FramedItem *>> m_selected; //!< a cache; empty if outdated
    bool m_isOutlineDue = false;
};

} // namespace Halvane::Corvex::Designer
