// SPDX-License-Identifier: MIT
// The mouse and the keys of CanvasScene.
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/graphics/CanvasScene.h"
#include "corvex/editing/graphics/CanvasState.h"
#include "corvex/editing/graphics/CropArea.h"
#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/editing/graphics/SelectionOutline.h"
#include "corvex/editing/graphics/private/CanvasMarks.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/values/text/ValueConversion.h"

#include <QApplication>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QKeyEvent>

#include <algorithm>

namespace Halvane::Corvex::Designer {

void CanvasScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::LeftButton || isGestureActive()) {
        return;
    }
    const QPointF point = event->scenePos();
    m_mouse = point;
    m_click.reset();
    clearMarks();
    if (const FramedItem *item = singleSelectedItem()) {
        bool found = false;
        const QQuickItem::TransformOrigin handle = item->getResizeHandle(point, &found);
        if (found) {
            m_gesture = CanvasGesture::resize(*item, handle, point);
            return;
        }
        if (item->isRotationGrip(point)) {
            m_gesture = CanvasGesture::turn(*item, point);
            return;
        }
    }
    if (FramedItem *item = clickedAt(point)) {
        pressItem(*item, point, event->modifiers());
        return;
    }
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        clearSelection();
    }
    m_crop = new CropArea;
    m_crop->setZValue(m_outline->zValue());
    addItem(m_crop);
}

//! With Control or Alt, only the release of the mouse says whether this is a click or a drag.
void CanvasScene::pressItem(FramedItem &item, const QPointF &point, Qt::KeyboardModifiers modifiers)
{
    QGraphicsItem *graphic = item.graphic();
    if (modifiers.testFlag(Qt::ControlModifier)) {
        m_click = {Click::Toggle, item.dataObject()};
        if (!graphic->isSelected()) {
            m_gesture = CanvasGesture::move({&item}, point);
            m_waitsForDrag = true;
            return;
        }
    } else if (modifiers.testFlag(Qt::AltModifier) && lowestSelectedAt(point) >= 0) {
        m_click = {Click::WalkDown, item.dataObject()};
    } else if (!graphic->isSelected()) {
        selectItems({graphic});
    }
    startMoving(point);
}

void CanvasScene::startMoving(const QPointF &point)
{
    QList<FramedItem *> items = selectedItemsOnCanvas();
    items.removeIf([](const FramedItem *item) { return !CanvasState::isFree(item->dataObject()); });
    if (!items.isEmpty()) {
        m_gesture = CanvasGesture::move(items, point);
        m_waitsForDrag = true;
    }
}

void CanvasScene::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    m_mouse = event->scenePos();
    if (m_crop) {
        m_crop->setUp(event->buttonDownScenePos(Qt::LeftButton), event->scenePos());
    } else if (m_gesture) {
        const QPoint way = event->screenPos() - event->buttonDownScreenPos(Qt::LeftButton);
        if (m_waitsForDrag && way.manhattanLength() >= QApplication::startDragDistance()) {
            startDrag();
        }
        if (!m_waitsForDrag) {
            dragTo(*m_mouse, event->modifiers());
        }
    } else {
        measure(*m_mouse, event->modifiers());
        if (event->widget()) {
            event->widget()->setCursor(cursorAt(*m_mouse));
        }
    }
}

void CanvasScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (m_crop) {
        const QRectF area = m_crop->boundingRect();
        delete std::exchange(m_crop, nullptr);
        selectTouched(area);
    } else if (m_gesture && m_waitsForDrag) {
        const std::optional<Click> click = std::exchange(m_click, std::nullopt);
        releaseGesture(false);
        if (click) {
            finishClick(*click, event->scenePos());
        }
    } else if (m_gesture) {
        endGesture(event->modifiers());
    }
}

//! The mouse has moved far enough.
void CanvasScene::startDrag()
{
    m_waitsForDrag = false;
    const std::optional<Click> click = std::exchange(m_click, std::nullopt);
    const FramedItem *item = click ? FramedItem::of(click->object) : nullptr;
    if (item && !item->graphic()->isSelected()) {
        selectItems({item->graphic()});
    }
}

void CanvasScene::dragTo(const QPointF &point, Qt::KeyboardModifiers modifiers)
{
    const bool snaps = m_snapping && !m_gesture->isTurn() && !modifiers.testFlag(Qt::AltModifier);
    if (snaps != m_isSnapping) {
        m_isSnapping = snaps;
        const SnapLines::Targets targets = snaps ? snapTargets() : SnapLines::Targets();
        m_gesture->snapTo(snaps ? &targets : nullptr);
    }
    m_gesture->moveTo(point, modifiers, snapDistance * pixel());
    m_marks->show(m_gesture->marks(), pixel());
    if (m_gesture->isMove()) {
        for (const QGraphicsView *view : views()) {
            view->viewport()->setCursor(modifiers.testFlag(Qt::ControlModifier) ? Qt::DragCopyCursor
                                                                                : Qt::SizeAllCursor);
        }
    }
    outline();
}

void CanvasScene::finishClick(const Click &click, const QPointF &point)
{
    if (click.kind == Click::Toggle) {
        if (const FramedItem *item = FramedItem::of(click.object)) {
            item->graphic()->setSelected(!item->graphic()->isSelected());
        }
        return;
    }
    // After the last one follows the uppermost.
    const QList<DesignerObject *> stack = objectsAt(point);
    if (!stack.isEmpty()) {
        selectObjects({stack.at((lowestSelectedAt(point) + 1) % stack.size())});
    }
}

//! Its place in objectsAt(); -1 if none is selected.
qsizetype CanvasScene::lowestSelectedAt(const QPointF &point) const
{
    const QList<DesignerObject *> stack = objectsAt(point);
    for (qsizetype index = stack.size() - 1; index >= 0; --index) {
        if (FramedItem::of(stack.at(index))->graphic()->isSelected()) {
            return index;
        }
    }
    return -1;
}

//! In scene coordinates.
double CanvasScene::pixel() const
{
    const QList<QGraphicsView *> all = views();
    return all.isEmpty() ? 1 : 1 / all.constFirst()->transform().m11();
}

//! The items beside those of the gesture, in the same group or on the screen.
SnapLines::Targets CanvasScene::snapTargets() const
{
    SnapLines::Targets targets;
    targets.own = *m_snapping;
    if (const GraphicsItem *item = GraphicsItem::of(m_screen)) {
        targets.screen = item->graphic()->mapRectToScene(item->frame());
    }
    const QList<DesignerObject *> moved = m_gesture->objects();
    const DesignerObject *owner = moved.isEmpty() ? nullptr : moved.constFirst()->ownerObject();
    const QSet<const DesignerObject *> excluded(moved.cbegin(), moved.cend());
    const QList<DesignerObject *> siblings = owner ? owner->childObjects() : QList<DesignerObject *>();
    for (const DesignerObject *sibling : siblings) {
        const FramedItem *item = excluded.contains(sibling) ? nullptr : FramedItem::of(sibling);
        if (item && item->graphic()->isVisible()) {
            targets.siblings.append(item->sceneArea());
        }
    }
    return targets;
}

const SnapMarks &CanvasScene::marks() const
{
    return m_marks->marks();
}

void CanvasScene::clearMarks()
{
    m_marks->show({}, pixel());
}

void CanvasScene::measure(const QPointF &point, Qt::KeyboardModifiers modifiers)
{
    SnapMarks marks;
    const QList<FramedItem *> selected =
        modifiers.testFlag(Qt::AltModifier) ? selectedItemsOnCanvas() : QList<FramedItem *>();
    if (!selected.isEmpty()) {
        QRectF from;
        for (const FramedItem *item : selected) {
            from |= item->sceneArea();
        }
        const FramedItem *other = clickedAt(point);
        const GraphicsItem *screen = GraphicsItem::of(m_screen);
        if (other && !other->graphic()->isSelected()) {
            marks = SnapMarks::between(from, other->sceneArea());
        } else if (screen) {
            marks = SnapMarks::between(from, screen->graphic()->mapRectToScene(screen->frame()));
        }
    }
    m_marks->show(marks, pixel());
}

void CanvasScene::endGesture(Qt::KeyboardModifiers modifiers)
{
    Project *project = screen() ? screen()->project() : nullptr;
    if (project && m_gesture->isMove() && modifiers.testFlag(Qt::ControlModifier)) {
        releaseGesture(addCopies());
        return;
    }
    std::unique_ptr<UndoCommand> command = project ? m_gesture->command() : nullptr;
    const bool isDone = command && command->isValid() && project->undoStack()->push(command.release());
    // Reset changes that the model did not accept.
    releaseGesture(isDone);
}

//! The originals return to their places.
bool CanvasScene::addCopies()
{
    UndoStack &stack = *screen()->project()->undoStack();
    PlannedCommand copying = Commands::duplicationOf(m_gesture->objects());
    m_gesture->release(false);
    if (!copying || !stack.beginGesture(copying.command->text())) {
        return false;
    }
    UndoCommand *command = copying.command.get();
    if (!stack.push(copying.command.release())) {
        stack.rollBackGesture();
        return false;
    }
    const QList<DesignerObject *> copies = command->selectedItems();
    QList<RequestedValue> places;
    for (const DesignerObject *copy : copies) {
        if (const FramedItem *item = FramedItem::of(copy)) {
            const QPointF place = item->graphic()->pos() + m_gesture->wayOf(*item->graphic());
            places.append({copy->getProperty(u"position"), ValueConversion::toString(place)});
        }
    }
    PlannedCommand moving = Commands::changeOf(places);
    if ((moving && !stack.push(moving.command.release())) || !stack.commitGesture()) {
        stack.rollBackGesture();
        return false;
    }
    selectObjects(copies);
    return true;
}

void CanvasScene::cancelGesture()
{
    delete std::exchange(m_crop, nullptr);
    releaseGesture(false);
}

void CanvasScene::releaseGesture(bool isDone)
{
    if (m_gesture) {
        m_gesture->release(isDone);
        m_gesture.reset();
        m_waitsForDrag = false;
        m_isSnapping = false;
        m_click.reset();
        clearMarks();
        outlineLater();
    }
}

void CanvasScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    FramedItem *item = innermostAt(event->scenePos());
    if (item && !item->graphic()->isSelected()) {
        selectItems({item->graphic()});
    }
}

//! Alt, Shift and Control act at once, without a movement of the mouse.
bool CanvasScene::followKey(const QKeyEvent &event, bool isPressed)
{
    const Qt::KeyboardModifier modifier = event.key() == Qt::Key_Alt       ? Qt::AltModifier
                                          : event.key() == Qt::Key_Shift   ? Qt::ShiftModifier
                                          : event.key() == Qt::Key_Control ? Qt::ControlModifier
                                                                           : Qt::NoModifier;
    if (modifier == Qt::NoModifier || !m_mouse || m_crop || m_waitsForDrag) {
        return false;
    }
    Qt::KeyboardModifiers modifiers = event.modifiers();
    modifiers.setFlag(modifier, isPressed);
    if (m_gesture) {
        dragTo(*m_mouse, modifiers);
    } else {
        measure(*m_mouse, modifiers);
    }
    return modifier == Qt::AltModifier;
}

bool CanvasScene::event(QEvent *event)
{
    if ((event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) && !m_gesture) {
        m_mouse.reset();
        clearMarks();
    }
    return QGraphicsScene::event(event);
}

void CanvasScene::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isGestureActive()) {
        cancelGesture();
    } else if (!followKey(*event, true)) {
        QGraphicsScene::keyPressEvent(event);
    }
}

void CanvasScene::keyReleaseEvent(QKeyEvent *event)
{
    if (!followKey(*event, false)) {
        QGraphicsScene::keyReleaseEvent(event);
    }
}

} // namespace Halvane::Corvex::Designer
