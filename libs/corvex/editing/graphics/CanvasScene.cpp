// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/CanvasScene.h"

#include "corvex/editing/graphics/CropArea.h"
#include "corvex/editing/graphics/FramePoint.h"
#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/editing/graphics/GraphicsBounding.h"
#include "corvex/editing/graphics/SelectionOutline.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <QApplication>
#include <QGraphicsSceneMouseEvent>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

namespace Halvane::Corvex::Designer {

namespace {

FramedItem *framed(GraphicsItem *item)
{
    return item && item->isKindOfClass(FramedItem::kindName()) ? static_cast<FramedItem *>(item) : nullptr;
}

bool hasSelectedParent(const QGraphicsItem *item)
{
    for (const QGraphicsItem *parent = item->parentItem(); parent; parent = parent->parentItem()) {
        if (parent->isSelected()) {
            return true;
        }
    }
    return false;
}

} // namespace

CanvasScene::CanvasScene(Screen *screen, QObject *parent)
    : QGraphicsScene(parent)
    , m_screen(screen)
    , m_outline(new SelectionOutline)
    , m_bounding(new GraphicsBounding)
{
    if (screen) {
        screen->setGraphicsItem();
        if (const GraphicsItem *item = GraphicsItem::of(screen)) {
            addItem(item->graphic());
        }
    }
    if (screen && screen->project()) {
        // A command may also replace the file of a picture, which no property tells.
        connect(screen->project()->undoStack(), &UndoStack::indexChanged, this, [this] {
            followSelection();
            update();
        });
    }
    addItem(m_outline);
    addItem(m_bounding);
    m_bounding->setZValue(m_outline->zValue());
    connect(this, &QGraphicsScene::selectionChanged, this, &CanvasScene::onSelectionChanged);
}

CanvasScene::~CanvasScene()
{
    // The items that go now would still tell of a selection that gets smaller.
    disconnect(this, &QGraphicsScene::selectionChanged, this, nullptr);
}

Screen *CanvasScene::screen() const
{
    return kindCast<Screen>(m_screen.data());
}

QList<FramedItem *> CanvasScene::selectedItemsOnCanvas() const
{
    QList<FramedItem *> items;
    for (const QGraphicsItem *graphic : selectedItems()) {
        FramedItem *item = framed(GraphicsItem::of(graphic));
        if (item && !hasSelectedParent(graphic)) {
            items.append(item);
        }
    }
    return items;
}

FramedItem *CanvasScene::singleSelectedItem() const
{
    const QList<FramedItem *> items = selectedItemsOnCanvas();
    return items.size() == 1 ? items.constFirst() : nullptr;
}

QList<DesignerObject *> CanvasScene::selectedObjects() const
{
    QList<DesignerObject *> objects;
    for (const FramedItem *item : selectedItemsOnCanvas()) {
        objects.append(item->dataObject());
    }
    return objects;
}

void CanvasScene::selectObjects(const QList<DesignerObject *> &objects)
{
    clearSelection();
    for (const DesignerObject *object : objects) {
        const GraphicsItem *item = GraphicsItem::of(object);
        if (item && item->graphic()->scene() == this) {
            item->graphic()->setSelected(true);
        }
    }
}

FramedItem *CanvasScene::innermostAt(const QPointF &point) const
{
    for (const QGraphicsItem *graphic : items(point)) {
        FramedItem *item = framed(GraphicsItem::of(graphic));
        if (item && graphic->flags().testFlag(QGraphicsItem::ItemIsSelectable)) {
            return item;
        }
    }
    return nullptr;
}

//! What is selected at that point, if anything is; else the element under it, a group as a whole.
FramedItem *CanvasScene::clickedAt(const QPointF &point) const
{
    FramedItem *clicked = innermostAt(point);
    for (FramedItem *item = clicked; item && !clicked->graphic()->isSelected();
         item = framed(GraphicsItem::of(item->graphic()->parentItem()))) {
        if (item->graphic()->flags().testFlag(QGraphicsItem::ItemIsSelectable)) {
            clicked = item;
        }
    }
    return clicked;
}

void CanvasScene::select(FramedItem *item, bool adds)
{
    if (adds) {
        item->graphic()->setSelected(!item->graphic()->isSelected());
    } else if (!item->graphic()->isSelected()) {
        clearSelection();
        item->graphic()->setSelected(true);
    }
}

QImage CanvasScene::picture()
{
    const GraphicsItem *item = GraphicsItem::of(m_screen);
    const QRectF area = item ? item->graphic()->mapRectToScene(item->frame()) : QRectF();
    QImage image(area.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    if (!image.isNull()) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::TextAntialiasing);
        render(&painter, image.rect(), area);
    }
    return image;
}

Qt::CursorShape CanvasScene::cursorAt(const QPointF &point) const
{
    if (const FramedItem *item = singleSelectedItem()) {
        if (item->isRotationGrip(point)) {
            return Qt::CrossCursor;
        }
        bool found = false;
        const QQuickItem::TransformOrigin handle = item->getResizeHandle(point, &found);
        if (found) {
            const QPointF along = item->graphic()->mapToScene(1, 0) - item->graphic()->mapToScene(0, 0);
            return FramePoint::of(handle).cursor(-QLineF(QPointF(), along).angle());
        }
    }
    return innermostAt(point) ? Qt::SizeAllCursor : Qt::ArrowCursor;
}

void CanvasScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::LeftButton || isGestureActive()) {
        return;
    }
    const QPointF point = event->scenePos();
    const bool adds = event->modifiers().testFlag(Qt::ControlModifier);
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
        select(item, adds);
        startMoving(point);
        return;
    }
    if (!adds) {
        clearSelection();
    }
    m_crop = new CropArea;
    m_crop->setZValue(m_outline->zValue());
    addItem(m_crop);
}

void CanvasScene::startMoving(const QPointF &point)
{
    const QList<FramedItem *> items = selectedItemsOnCanvas();
    if (!items.isEmpty()) {
        m_gesture = CanvasGesture::move(items, point);
        m_waitsForDrag = true;
    }
}

void CanvasScene::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    if (m_crop) {
        m_crop->setUp(event->buttonDownScenePos(Qt::LeftButton), event->scenePos());
    } else if (m_gesture) {
        const QPoint way = event->screenPos() - event->buttonDownScreenPos(Qt::LeftButton);
        m_waitsForDrag = m_waitsForDrag && way.manhattanLength() < QApplication::startDragDistance();
        if (!m_waitsForDrag) {
            m_gesture->moveTo(event->scenePos(), event->modifiers());
            followSelection();
        }
    } else if (event->widget()) {
        event->widget()->setCursor(cursorAt(event->scenePos()));
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
    } else if (m_gesture) {
        endGesture();
    }
}

void CanvasScene::endGesture()
{
    Project *project = screen() ? screen()->project() : nullptr;
    std::unique_ptr<UndoCommand> command = project ? m_gesture->command() : nullptr;
    if (command && command->isValid()) {
        project->undoStack()->push(command.release());
    }
    // What the model has not taken over does not stay on the canvas either.
    cancelGesture();
}

void CanvasScene::cancelGesture()
{
    delete std::exchange(m_crop, nullptr);
    if (m_gesture) {
        m_gesture->release();
        m_gesture.reset();
        m_waitsForDrag = false;
        followSelection();
    }
}

void CanvasScene::selectTouched(const QRectF &area)
{
    for (const QGraphicsItem *graphic : items(area)) {
        GraphicsItem *item = GraphicsItem::of(graphic);
        if (item && !graphic->parentItem() && item->dataObject() != m_screen) {
            item->graphic()->setSelected(true);
        }
    }
}

void CanvasScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    if (FramedItem *item = innermostAt(event->scenePos())) {
        select(item, false);
    }
}

void CanvasScene::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isGestureActive()) {
        cancelGesture();
    } else {
        QGraphicsScene::keyPressEvent(event);
    }
}

void CanvasScene::onSelectionChanged()
{
    for (const QMetaObject::Connection &connection : std::as_const(m_followed)) {
        disconnect(connection);
    }
    m_followed.clear();
    for (const FramedItem *item : selectedItemsOnCanvas()) {
        m_followed.append(connect(item->dataObject(), &DesignerObject::propertyValueChanged, this,
                                  &CanvasScene::followSelection));
    }
    followSelection();
}

void CanvasScene::followSelection()
{
    const QList<FramedItem *> items = selectedItemsOnCanvas();
    m_outline->follow(items, !m_gesture || m_waitsForDrag);
    QRectF around;
    for (const FramedItem *item : items) {
        around |= item->graphic()->mapRectToScene(item->frame());
    }
    m_bounding->setRect(around);
    m_bounding->setVisible(items.size() > 1);
}

} // namespace Halvane::Corvex::Designer
