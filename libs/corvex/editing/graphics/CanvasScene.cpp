// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/CanvasScene.h"

#include "corvex/editing/graphics/CanvasState.h"
#include "corvex/editing/graphics/CropArea.h"
#include "corvex/editing/graphics/FramePoint.h"
#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/editing/graphics/GraphicsBounding.h"
#include "corvex/editing/graphics/SelectionOutline.h"
#include "corvex/editing/graphics/private/CanvasMarks.h"
#include "corvex/editing/undo/UndoCommand.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <functional>

namespace Halvane::Corvex::Designer {

namespace {

template<class Condition>
bool hasParent(const QGraphicsItem *item, const Condition &condition)
{
    for (QGraphicsItem *parent = item->parentItem(); parent; parent = parent->parentItem()) {
        if (condition(parent)) {
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
    , m_marks(new CanvasMarks)
{
    if (screen) {
        screen->setGraphicsItem();
        if (const GraphicsItem *item = GraphicsItem::of(screen)) {
            addItem(item->graphic());
        }
    }
    if (screen && screen->project()) {
        connect(screen->project(), &Project::undoStackChanged, this, &CanvasScene::connectHistory);
        connectHistory();
    }
    addItem(m_outline);
    addItem(m_bounding);
    addItem(m_marks);
    m_bounding->setZValue(m_outline->zValue());
    connect(this, &QGraphicsScene::selectionChanged, this, &CanvasScene::onSelectionChanged);
}

CanvasScene::~CanvasScene()
{
    // Items that are deleted now would report changes of the selection.
    blockSignals(true);
}

Screen *CanvasScene::screen() const
{
    return kindCast<Screen>(m_screen.data());
}

const QList<FramedItem *> &CanvasScene::selectedItemsOnCanvas() const
{
    if (m_selected) {
        return *m_selected;
    }
    QList<FramedItem *> &items = m_selected.emplace();
    for (const QGraphicsItem *graphic : selectedItems()) {
        FramedItem *item = FramedItem::of(graphic);
        if (item && !hasParent(graphic, std::mem_fn(&QGraphicsItem::isSelected))) {
            items.append(item);
        }
    }
    return items;
}

FramedItem *CanvasScene::singleSelectedItem() const
{
    const QList<FramedItem *> &items = selectedItemsOnCanvas();
    return items.size() == 1 && CanvasState::isFree(items.constFirst()->dataObject()) ? items.constFirst()
                                                                                      : nullptr;
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
    selectItems(itemsOf(objects));
}

QList<QGraphicsItem *> CanvasScene::itemsOf(const QList<DesignerObject *> &objects) const
{
    QList<QGraphicsItem *> items;
    for (const DesignerObject *object : objects) {
        const GraphicsItem *item = GraphicsItem::of(object);
        if (item && item->graphic()->scene() == this
            && item->graphic()->flags().testFlag(QGraphicsItem::ItemIsSelectable)) {
            items.append(item->graphic());
        }
    }
    return items;
}

void CanvasScene::selectItems(const QList<QGraphicsItem *> &items)
{
    const QSet<QGraphicsItem *> all(items.cbegin(), items.cend());
    QSet<QGraphicsItem *> wanted = all;
    // Members are deleted with their group.
    wanted.removeIf([&all](const QGraphicsItem *item) {
        return hasParent(item, [&all](QGraphicsItem *parent) { return all.contains(parent); });
    });
    bool isChanged = false;
    {
        // Avoids a signal for each item.
        const QSignalBlocker blocker(this);
        for (QGraphicsItem *item : selectedItems()) {
            if (!wanted.contains(item)) {
                item->setSelected(false);
                isChanged = true;
            }
        }
        for (QGraphicsItem *item : std::as_const(wanted)) {
            if (!item->isSelected()) {
                item->setSelected(true);
                isChanged = isChanged || item->isSelected();
            }
        }
    }
    if (isChanged) {
        emit selectionChanged();
    }
}

QList<DesignerObject *> CanvasScene::objectsAt(const QPointF &point) const
{
    QList<DesignerObject *> objects;
    for (const QGraphicsItem *graphic : items(point)) {
        const FramedItem *item = FramedItem::of(graphic);
        if (item && graphic->flags().testFlag(QGraphicsItem::ItemIsSelectable)
            && CanvasState::isFree(item->dataObject())) {
            objects.append(item->dataObject());
        }
    }
    return objects;
}

FramedItem *CanvasScene::innermostAt(const QPointF &point) const
{
    for (const QGraphicsItem *graphic : items(point)) {
        FramedItem *item = FramedItem::of(graphic);
        if (item && graphic->flags().testFlag(QGraphicsItem::ItemIsSelectable)
            && CanvasState::isFree(item->dataObject())) {
            return item;
        }
    }
    return nullptr;
}

//! The selected item at that point, if any; otherwise the element under it, where a group counts as a whole.
FramedItem *CanvasScene::clickedAt(const QPointF &point) const
{
    FramedItem *clicked = innermostAt(point);
    for (FramedItem *item = clicked; item && !clicked->graphic()->isSelected();
         item = FramedItem::of(item->graphic()->parentItem())) {
        if (item->graphic()->flags().testFlag(QGraphicsItem::ItemIsSelectable)) {
            clicked = item;
        }
    }
    return clicked;
}

QImage CanvasScene::picture(Contents contents)
{
    const GraphicsItem *item = GraphicsItem::of(m_screen);
    const QRectF area = item ? item->graphic()->mapRectToScene(item->frame()) : QRectF();
    QImage image(area.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    if (!image.isNull()) {
        outline();
        const bool showsBounding = m_bounding->isVisible();
        m_outline->setVisible(contents == WithSelection);
        m_marks->setVisible(contents == WithSelection);
        m_bounding->setVisible(contents == WithSelection && showsBounding);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::TextAntialiasing);
        render(&painter, image.rect(), area);
        m_outline->setVisible(true);
        m_marks->setVisible(true);
        m_bounding->setVisible(showsBounding);
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

void CanvasScene::selectTouched(const QRectF &area)
{
    QPainterPath path;
    path.addRect(area);
    // Most items are completely inside the area; comparing shapes is slower.
    const auto isTouched = [&](const QGraphicsItem &graphic) {
        const QRectF bounds = graphic.sceneBoundingRect();
        return (!bounds.isEmpty() && area.contains(bounds))
               || graphic.collidesWithPath(graphic.mapFromScene(path), Qt::IntersectsItemShape);
    };
    QList<QGraphicsItem *> touched = selectedItems();
    for (QGraphicsItem *graphic : items(area, Qt::IntersectsItemBoundingRect)) {
        const GraphicsItem *item = GraphicsItem::of(graphic);
        if (item && !graphic->parentItem() && item->dataObject() != m_screen
            && CanvasState::isFree(item->dataObject()) && isTouched(*graphic)) {
            touched.append(graphic);
        }
    }
    selectItems(touched);
}

void CanvasScene::onSelectionChanged()
{
    m_selected.reset();
    outlineLater();
}

void CanvasScene::connectHistory()
{
    if (m_history) {
        disconnect(m_history, nullptr, this, nullptr);
    }
    m_history = screen()->project()->undoStack();
    connect(m_history, &UndoStack::indexChanged, this, [this] { followHistory(*m_history); });
}

void CanvasScene::followHistory(const UndoStack &stack)
{
    // A command may also replace an image file without a property change.
    update();
    if (m_gesture) {
        return; // the edit affects the current selection
    }
    const int done = stack.currentIndex() - (stack.isRedoToCurrentIndex() ? 1 : 0);
    // The stack owns its commands, but QUndoStack only returns const pointers.
    auto *command = const_cast<UndoCommand *>(dynamic_cast<const UndoCommand *>(stack.command(done)));
    if (const QList<QGraphicsItem *> items =
            itemsOf(command ? command->selectedItems() : QList<DesignerObject *>());
        !items.isEmpty()) {
        selectItems(items);
    }
}

void CanvasScene::outlineLater()
{
    // An edit may change thousands of items, and each of them reports it.
    if (!m_isOutlineDue) {
        m_isOutlineDue = true;
        QMetaObject::invokeMethod(this, &CanvasScene::outline, Qt::QueuedConnection);
    }
}

void CanvasScene::outline()
{
    m_isOutlineDue = false;
    const QList<FramedItem *> &items = selectedItemsOnCanvas();
    const bool hasHandles = (!m_gesture || m_waitsForDrag) && singleSelectedItem();
    m_bounding->setRect(m_outline->follow(items, hasHandles));
    m_bounding->setVisible(items.size() > 1);
}

} // namespace Halvane::Corvex::Designer
