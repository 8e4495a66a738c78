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

/*! The canvas of one screen: its items, the selection, and the mouse at work on it.

    A click selects the element under the mouse, a group as a whole; a double click selects inside the group;
    with Control pressed, a click adds to the selection or takes away. Dragging moves what is selected, its
    handles resize it, its grip turns it, and from an empty place a rectangle selects what it touches.
   Releasing the mouse pushes one command onto the history of the screen's project; Escape gives the gesture
   up, as does everything in a screen without a project.
*/
class CORVEX_EXPORT CanvasScene : public QGraphicsScene
{
    Q_OBJECT

public:
    //! A screen is on one canvas at a time. It may go before the scene does, which is empty then.
    explicit CanvasScene(Screen *screen, QObject *parent = nullptr);
    ~CanvasScene() override;

    Screen *screen() const;
    QList<DesignerObject *> selectedObjects() const;
    //! Elements that are not on the canvas are passed over.
    void selectObjects(const QList<DesignerObject *> &objects);
    //! Has what is selected outlined again soon, where it is by then.
    void outlineLater();
    bool isGestureActive() const { return m_gesture || m_crop; }
    void cancelGesture();
    //! The screen, as large as it is, with what is selected; null when that would be no picture.
    QImage picture();
    //! What the mouse would do at a point of the scene.
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
    //! Those of the objects that are on the canvas to be selected.
    QList<QGraphicsItem *> itemsOf(const QList<DesignerObject *> &objects) const;
    //! In one step, however many they are.
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
    bool m_waitsForDrag = false; //!< the mouse has not moved far enough yet to mean it
    CropArea *m_crop = nullptr;
    SelectionOutline *m_outline;
    GraphicsBounding *m_bounding;
    mutable std::optional<QList<FramedItem *>> m_selected; //!< none when it is to be asked for again
    bool m_isOutlineDue = false;
};

} // namespace Halvane::Corvex::Designer
