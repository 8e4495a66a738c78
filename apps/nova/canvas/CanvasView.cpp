// SPDX-License-Identifier: MIT
#include "canvas/CanvasView.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/graphics/GraphicsItem.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/Theme.h"
#include "corvex/widgets/ZoomBox.h"

#include "project/Workspace.h"

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
{
    setFrameShape(NoFrame);
    setMouseTracking(true);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(AnchorViewCenter);
    setRenderHints(QPainter::TextAntialiasing);
    setAccessibleName(LocalizationHelper::coreString(u"Canvas"_s));
    connect(&workspace, &Workspace::screenChanged, this, &CanvasView::showScreen);
    connect(&workspace.document(), &ProjectDocument::selectionChanged, this, &CanvasView::takeSelection);
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
    setScene(m_scene.get());
    updatePasteboard();
    takeSelection();
    if (m_fits) {
        fitScreen();
    }
    emit placeChanged();
}

void CanvasView::updatePasteboard()
{
    const QRectF area = screenArea();
    setSceneRect(area.adjusted(-area.width() * pasteboard, -area.height() * pasteboard,
                               area.width() * pasteboard, area.height() * pasteboard));
}

QRectF CanvasView::screenArea() const
{
    const GraphicsItem *item = GraphicsItem::of(m_workspace.screen());
    return m_scene && item ? item->graphic()->mapRectToScene(item->frame()) : QRectF();
}

QList<DesignerObject *> CanvasView::selectableObjects() const
{
    return m_workspace.screen() ? m_workspace.screen()->elements()->listItems() : QList<DesignerObject *>();
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
        if (const GraphicsItem *item = GraphicsItem::of(object)) {
            area |= item->graphic()->sceneBoundingRect();
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

void CanvasView::drawBackground(QPainter *painter, const QRectF &area)
{
    painter->fillRect(area, palette().color(QPalette::Mid));
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
        if (position) {
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

void CanvasView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton || (m_hasHand && event->button() == Qt::LeftButton)) {
        m_dragged = event->position().toPoint();
        setHand(m_hasHand);
    } else {
        QGraphicsView::mousePressEvent(event);
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
    } else if (!m_hasHand) {
        QGraphicsView::mouseMoveEvent(event);
    }
    emit mouseMoved(mapToScene(place));
}

void CanvasView::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_dragged && (event->button() == Qt::MiddleButton || event->button() == Qt::LeftButton)) {
        m_dragged.reset();
        setHand(m_hasHand);
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
    if (event->type() == QEvent::PaletteChange) {
        viewport()->update();
    }
}

} // namespace Halvane::Corvex::Nova
