// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/graphics/CanvasGesture.h"

#include <QGraphicsScene>

#include <optional>

namespace Halvane::Corvex::Designer {

class CanvasMarks;
class CropArea;
class GraphicsBounding;
class Screen;
class SelectionOutline;
class UndoStack;

/*! The canvas of one screen: its items, the selection and the mouse interaction.

    A click selects the element under the mouse; a group counts as a whole. A double click selects inside the
    group. With Control pressed, a click adds to the selection or removes from it; with Alt it selects the
    next element below the selected one. Dragging moves the selection, or a copy of it with Control, its
    handles resize it, its grip rotates it, and dragging from an empty place selects everything that the
    rectangle touches. Releasing the mouse pushes one command onto the history of the screen's project. Escape
    cancels the gesture; so does a release if the screen has no project.

    Edges snap while they are dragged, unless Alt is pressed. Without a drag, Alt shows the distances from the
    selection to the element under the mouse. The mouse ignores hidden and locked elements, see CanvasState.
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
    //! Dragged edges snap from now on, within snapDistance pixels of the view; by default they do not.
    void setSnapping(const std::optional<SnapGuides> &guides) { m_snapping = guides; }
    static constexpr double snapDistance = 6;
    //! The guides and distances that are shown now.
    const SnapMarks &marks() const;
    //! Removes distances that were shown because of a key or the mouse.
    void clearMarks();
    //! The elements at a point that the mouse can select, the uppermost first; members come before their
    //! group.
    QList<DesignerObject *> objectsAt(const QPointF &point) const;
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
    void keyReleaseEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    //! What the release does if the mouse has not moved.
    struct Click
    {
        enum Kind { Toggle, WalkDown };
        Kind kind;
        QPointer<DesignerObject> object;
    };
    const QList<FramedItem *> &selectedItemsOnCanvas() const;
    FramedItem *singleSelectedItem() const;
    FramedItem *innermostAt(const QPointF &point) const;
    FramedItem *clickedAt(const QPointF &point) const;
    //! The items of those objects that can be selected on the canvas.
    QList<QGraphicsItem *> itemsOf(const QList<DesignerObject *> &objects) const;
    //! In one step, whatever their number.
    void selectItems(const QList<QGraphicsItem *> &items);
    void pressItem(FramedItem &item, const QPointF &point, Qt::KeyboardModifiers modifiers);
    void startMoving(const QPointF &point);
    void startDrag();
    void dragTo(const QPointF &point, Qt::KeyboardModifiers modifiers);
    qsizetype lowestSelectedAt(const QPointF &point) const;
    void finishClick(const Click &click, const QPointF &point);
    void endGesture(Qt::KeyboardModifiers modifiers);
    bool addCopies();
    void releaseGesture(bool isDone);
    bool followKey(const QKeyEvent &event, bool isPressed);
    void measure(const QPointF &point, Qt::KeyboardModifiers modifiers);
    SnapLines::Targets snapTargets() const;
    double pixel() const;
    void selectTouched(const QRectF &area);
    void onSelectionChanged();
    void outline();
    void connectHistory();
    void followHistory(const UndoStack &stack);

    QPointer<DesignerObject> m_screen;
    QPointer<UndoStack> m_history;
    std::optional<CanvasGesture> m_gesture;
    bool m_waitsForDrag = false; //!< the mouse has not yet moved far enough for a drag
    std::optional<Click> m_click;
    std::optional<SnapGuides> m_snapping;
    bool m_isSnapping = false;      //!< in the current gesture
    std::optional<QPointF> m_mouse; //!< the last place of the mouse, unless it has left the canvas
    CropArea *m_crop = nullptr;
    SelectionOutline *m_outline;
    GraphicsBounding *m_bounding;
    CanvasMarks *m_marks;
    mutable std::optional<QList<FramedItem *>> m_selected; //!< a cache; empty if outdated
    bool m_isOutlineDue = false;
};

} // namespace Halvane::Corvex::Designer
