// SPDX-License-Identifier: MIT
#include "canvas/CanvasView.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/graphics/CanvasState.h"
#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/Theme.h"
#include "corvex/widgets/ZoomBox.h"

#include "canvas/CanvasGuides.h"
#include "canvas/PasteboardShade.h"
#include "project/DroppedObjects.h"
#include "project/Workspace.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGraphicsItem>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

//! The free space around the screen, as a part of its size.
constexpr double pasteboard = 1.0;
constexpr double fitMargin = 24; // pixels
constexpr int shadeOpacity = 160;
constexpr double largestFit = 2;
constexpr double anglePerStep = 120;
constexpr double zoomPerStep = 1.2;

struct ArrowKey
{
    int key;
    QPoint way;
};
constexpr ArrowKey arrowKeys[] = {
    {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
constexpr int largeStep = 10;

} // namespace

CanvasView::CanvasView(Workspace &workspace, QWidget *parent)
    : QGraphicsView(parent)
    , m_workspace(workspace)
    , m_guides(new CanvasGuides(*this, workspace))
{
    setAcceptDrops(true);
    setFrameShape(NoFrame);
    setMouseTracking(true);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(AnchorViewCenter);
    setRenderHints(QPainter::TextAntialiasing);
    setAccessibleName(LocalizationHelper::coreString(u"Canvas"_s));
    connect(&workspace, &Workspace::screenChanged, this, &CanvasView::showScreen);
    connect(&workspace.document(), &ProjectDocument::selectionChanged, this, &CanvasView::takeSelection);
    connect(&workspace.document().history(), &ProjectHistory::moved, this, &CanvasView::growPasteboard);
    connect(&workspace.view(), &ViewState::guidesChanged, this, &CanvasView::takeGuides);
    showScreen();
}

CanvasView::~CanvasView()
{
    setScene(nullptr);
}

void CanvasView::showScreen()
{
    setScene(nullptr);
    m_scene.reset();
    Screen *screen = m_workspace.screen();
    if (!screen) {
        return;
    }
    m_scene = std::make_unique<CanvasScene>(screen);
    connect(m_scene.get(), &QGraphicsScene::selectionChanged, this, &CanvasView::giveSelection);
    connect(screen, &DesignerObject::propertyValueChanged, m_scene.get(),
            [this](const SharedProperty &property) {
                if (property->id() == "size"_L1) {
                    updatePasteboard();
                }
            });
    m_shade = new PasteboardShade;
    m_scene->addItem(m_shade);
    m_used = {};
    for (const DesignerObject *element : screen->elements()->listItems()) {
        if (const FramedItem *item = FramedItem::of(element)) {
            m_used |= item->sceneArea();
        }
    }
    setScene(m_scene.get());
    updatePasteboard();
    takeGuides();
    takeSelection();
    if (m_fits) {
        fitScreen();
    }
    emit placeChanged();
}

void CanvasView::updatePasteboard()
{
    const QRectF area = screenArea();
    const double across = area.width() * pasteboard;
    const double down = area.height() * pasteboard;
    QRectF whole = area.adjusted(-across, -down, across, down);
    if (m_used.isValid()) {
        whole |= m_used.adjusted(-fitMargin, -fitMargin, fitMargin, fitMargin);
    }
    setSceneRect(whole);
    QColor shade = palette().color(QPalette::Mid);
    shade.setAlpha(shadeOpacity);
    m_shade->place(area, whole);
    m_shade->setColor(shade);
}

//! After an edit, whose elements are selected.
void CanvasView::growPasteboard()
{
    QRectF used = m_used;
    const QList<DesignerObject *> selected = m_scene ? m_scene->selectedObjects() : QList<DesignerObject *>();
    for (const DesignerObject *object : selected) {
        used |= FramedItem::of(object)->sceneArea();
    }
    if (used != m_used) {
        m_used = used;
        if (!sceneRect().contains(m_used)) {
            updatePasteboard();
        }
    }
}

void CanvasView::takeGuides()
{
    if (m_scene) {
        m_scene->setSnapping(m_workspace.view().guidesOf(m_workspace.screen()));
        viewport()->update();
    }
}

QRectF CanvasView::screenArea() const
{
    const GraphicsItem *item = GraphicsItem::of(m_workspace.screen());
    return m_scene && item ? item->graphic()->mapRectToScene(item->frame()) : QRectF();
}

QList<DesignerObject *> CanvasView::selectableObjects() const
{
    QList<DesignerObject *> objects;
    if (m_workspace.screen()) {
        objects = m_workspace.screen()->elements()->listItems();
        objects.removeIf([](const DesignerObject *object) { return !CanvasState::isFree(object); });
    }
    return objects;
}

double CanvasView::scale() const
{
    return transform().m11();
}

void CanvasView::setScale(double scale, std::optional<QPoint> anchor)
{
    scale = std::clamp(scale, ZoomBox::smallest, ZoomBox::largest);
    const QPoint fixed = anchor.value_or(viewport()->rect().center());
    const QPointF point = mapToScene(fixed);
    setTransform(QTransform::fromScale(scale, scale));
    const QPointF moved = viewportTransform().map(point) - QPointF(fixed);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y()));
    m_fits = false;
    emit scaleChanged(scale);
    emit placeChanged();
}

void CanvasView::fit(const QRectF &area)
{
    if (area.isEmpty()) {
        return;
    }
    const QSizeF space = QSizeF(viewport()->size()) - QSizeF(2 * fitMargin, 2 * fitMargin);
    const double scale = std::min(space.width() / area.width(), space.height() / area.height());
    setScale(std::min(scale, largestFit));
    centerOn(area.center());
    emit placeChanged();
}

void CanvasView::fitScreen()
{
    fit(screenArea());
    m_fits = true;
}

void CanvasView::fitSelection()
{
    QRectF area;
    for (const DesignerObject *object : m_workspace.selectedElements()) {
        if (const FramedItem *item = FramedItem::of(object)) {
            area |= item->sceneArea();
        }
    }
    fit(area.isEmpty() ? screenArea() : area);
}

void CanvasView::takeSelection()
{
    if (m_scene && !m_isSelecting) {
        const QScopedValueRollback guard(m_isSelecting, true);
        m_scene->selectObjects(m_workspace.document().selection());
    }
}

void CanvasView::giveSelection()
{
    if (!m_isSelecting) {
        const QScopedValueRollback guard(m_isSelecting, true);
        m_workspace.document().select(m_scene->selectedObjects());
    }
}

bool CanvasView::event(QEvent *event)
{
    // Otherwise Alt, which measures and suspends snapping, would move the focus to the menu bar.
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Alt && viewport()->underMouse()) {
        event->accept();
        return true;
    }
    return QGraphicsView::event(event);
}

void CanvasView::drawBackground(QPainter *painter, const QRectF &area)
{
    painter->fillRect(area, palette().color(QPalette::Mid));
}

void CanvasView::drawForeground(QPainter *painter, const QRectF &area)
{
    m_guides->paint(*painter, area);
}

void CanvasView::contextMenuEvent(QContextMenuEvent *event)
{
    if (!m_scene || m_scene->isGestureActive()) {
        return;
    }
    QList<DesignerObject *> objects;
    if (event->reason() == QContextMenuEvent::Mouse) {
        objects = m_scene->objectsAt(mapToScene(event->pos()));
        const auto isSelected = [](const DesignerObject *object) {
            return GraphicsItem::of(object)->graphic()->isSelected();
        };
        if (std::ranges::none_of(objects, isSelected)) {
            // A group counts as a whole.
            DesignerObject *outermost = objects.value(0);
            while (outermost && objects.contains(outermost->ownerObject())) {
                outermost = outermost->ownerObject();
            }
            m_workspace.document().select(outermost ? QList{outermost} : QList<DesignerObject *>());
        }
    }
    emit menuRequested(event->globalPos(), objects);
}

void CanvasView::dragEnterEvent(QDragEnterEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(DroppedObjects::canDrop(*event->mimeData(), m_workspace));
}

void CanvasView::dragMoveEvent(QDragMoveEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void CanvasView::dropEvent(QDropEvent *event)
{
    if (!m_scene || !DroppedObjects::canDrop(*event->mimeData(), m_workspace)) {
        return;
    }
    const QPointF place = mapToScene(event->position().toPoint());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (DroppedObjects::drop(*event->mimeData(), place, m_scene->objectsAt(place).value(0), m_workspace,
                             this)) {
        setFocus(Qt::OtherFocusReason);
    }
}

bool CanvasView::moveSelection(const QKeyEvent &event)
{
    const auto *arrow = std::ranges::find(arrowKeys, event.key(), &ArrowKey::key);
    if (arrow == std::end(arrowKeys) || !m_scene || m_scene->isGestureActive()) {
        return false;
    }
    const QPoint way = arrow->way * (event.modifiers().testFlag(Qt::ShiftModifier) ? largeStep : 1);
    QList<RequestedValue> values;
    for (const DesignerObject *object : m_scene->selectedObjects()) {
        const SharedProperty position = object->getProperty(u"position");
        if (position && CanvasState::isFree(object)) {
            const QPointF place = ValueConversion::toPoint(position->valueString());
            values.append({position, ValueConversion::toString(place + QPointF(way))});
        }
    }
    if (values.isEmpty()) {
        return false;
    }
    PlannedCommand planned = Commands::changeOf(values);
    if (planned) {
        ProjectDocument &document = m_workspace.document();
        if (!document.pushInRun(LocalizationHelper::coreString(u"Move the selection"_s),
                                planned.command.release())) {
            m_workspace.reportFailure();
        }
    }
    return true;
}

void CanvasView::setHand(bool on)
{
    m_hasHand = on;
    if (on || m_dragged) {
        viewport()->setCursor(m_dragged ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    } else {
        viewport()->unsetCursor();
    }
}

void CanvasView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat() && !(m_scene && m_scene->isGestureActive())) {
        setHand(true);
    } else if (event->key() == Qt::Key_Escape && m_guides->isDragging()) {
        m_guides->cancel();
    } else if (!moveSelection(*event)) {
        QGraphicsView::keyPressEvent(event);
    }
}

void CanvasView::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        setHand(false);
    } else {
        QGraphicsView::keyReleaseEvent(event);
    }
}

void CanvasView::focusOutEvent(QFocusEvent *event)
{
    setHand(false);
    QGraphicsView::focusOutEvent(event);
}

void CanvasView::leaveEvent(QEvent *event)
{
    emit mouseMoved(std::nullopt);
    QGraphicsView::leaveEvent(event);
}

//! Elements and handles come before guides.
bool CanvasView::isFreePlace(const QPoint &place) const
{
    return m_scene && m_scene->cursorAt(mapToScene(place)) == Qt::ArrowCursor;
}

void CanvasView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton || (m_hasHand && event->button() == Qt::LeftButton)) {
        m_dragged = event->position().toPoint();
        setHand(m_hasHand);
    } else if (event->button() == Qt::LeftButton && isFreePlace(event->position().toPoint())
               && m_guides->start(event->position().toPoint())) {
        event->accept();
    } else {
        QGraphicsView::mousePressEvent(event);
        // A variable or a hidden element may be selected.
        if (m_scene && event->button() == Qt::LeftButton && m_scene->selectedObjects().isEmpty()) {
            giveSelection();
        }
    }
}

void CanvasView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    if (m_dragged) {
        const QPoint way = place - *m_dragged;
        m_dragged = place;
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
    } else if (m_guides->isDragging()) {
        m_guides->moveTo(place);
    } else if (!m_hasHand) {
        QGraphicsView::mouseMoveEvent(event);
        const auto guide = event->buttons() == Qt::NoButton ? m_guides->orientationAt(place) : std::nullopt;
        if (guide && isFreePlace(place)) {
            viewport()->setCursor(guide == Qt::Horizontal ? Qt::SplitVCursor : Qt::SplitHCursor);
        }
    }
    emit mouseMoved(mapToScene(place));
}

void CanvasView::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_dragged && (event->button() == Qt::MiddleButton || event->button() == Qt::LeftButton)) {
        m_dragged.reset();
        setHand(m_hasHand);
    } else if (m_guides->isDragging()) {
        m_guides->drop(event->position().toPoint());
    } else {
        QGraphicsView::mouseReleaseEvent(event);
    }
}

void CanvasView::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    const double steps = event->angleDelta().y() / anglePerStep;
    setScale(scale() * std::pow(zoomPerStep, steps), event->position().toPoint());
    event->accept();
}

void CanvasView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    if (m_fits) {
        fitScreen();
    }
    emit placeChanged();
}

void CanvasView::scrollContentsBy(int dx, int dy)
{
    QGraphicsView::scrollContentsBy(dx, dy);
    emit placeChanged();
}

void CanvasView::changeEvent(QEvent *event)
{
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_scene) {
        updatePasteboard();
    }
}

} // namespace Halvane::Corvex::Nova
