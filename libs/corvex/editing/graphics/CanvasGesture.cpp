// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/CanvasGesture.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/graphics/FramePoint.h"
#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/editing/undo/UndoCommand.h"

#include <QGraphicsItem>
#include <QLineF>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr double turnStep = 1;
constexpr double coarseTurnStep = 15;

//! In degrees, clockwise, like rotations.
double direction(const FramedItem &item, const QPointF &point)
{
    const QGraphicsItem *graphic = item.graphic();
    return -QLineF(graphic->mapToScene(graphic->transformOriginPoint()), point).angle();
}

QPointF wholePixels(const QPointF &point)
{
    return QPointF(point.toPoint());
}

//! Whether edges are horizontal and vertical in the scene.
bool isUpright(const FramedItem &item)
{
    return item.graphic()->sceneTransform().type() <= QTransform::TxScale;
}

} // namespace

CanvasGesture CanvasGesture::move(const QList<FramedItem *> &items, const QPointF &start)
{
    CanvasGesture gesture(Kind::Move, start);
    for (const FramedItem *item : items) {
        gesture.m_items.append({item->dataObject(), item->graphic()->pos(), 0});
        gesture.m_area |= item->sceneArea();
    }
    return gesture;
}

CanvasGesture CanvasGesture::resize(const FramedItem &item, QQuickItem::TransformOrigin handle,
                                    const QPointF &start)
{
    CanvasGesture gesture(Kind::Resize, start);
    gesture.m_handle = handle;
    gesture.m_items.append({item.dataObject(), item.handlePoint(handle) - start, 0});
    return gesture;
}

CanvasGesture CanvasGesture::turn(const FramedItem &item, const QPointF &start)
{
    CanvasGesture gesture(Kind::Turn, start);
    gesture.m_items.append({item.dataObject(), {}, item.graphic()->rotation() - direction(item, start)});
    return gesture;
}

void CanvasGesture::snapTo(const SnapLines::Targets *targets)
{
    m_snapLines.reset();
    m_marks = {};
    if (targets) {
        m_snapLines.emplace(*targets, m_area.size());
    }
}

QList<DesignerObject *> CanvasGesture::objects() const
{
    QList<DesignerObject *> objects;
    for (const Start &start : m_items) {
        if (start.object) {
            objects.append(start.object);
        }
    }
    return objects;
}

void CanvasGesture::moveTo(const QPointF &point, Qt::KeyboardModifiers modifiers, double tolerance)
{
    const bool isShifted = modifiers.testFlag(Qt::ShiftModifier);
    m_marks = {};
    if (m_kind == Kind::Move) {
        moveItems(point, isShifted, tolerance);
        return;
    }
    FramedItem *item = FramedItem::of(m_items.constFirst().object);
    if (!item) {
        return;
    }
    const Start &start = m_items.constFirst();
    if (m_kind == Kind::Resize) {
        item->setRatioForced(isShifted);
        resizeItem(*item, start, point, tolerance);
    } else {
        const double step = isShifted ? coarseTurnStep : turnStep;
        item->rotateByMouse(std::round((direction(*item, point) + start.angle) / step) * step);
    }
}

void CanvasGesture::moveItems(const QPointF &point, bool keepsAxis, double tolerance)
{
    m_way = point - m_start;
    SnapLines::Moving moving;
    if (keepsAxis) {
        const bool isAcross = std::abs(m_way.x()) >= std::abs(m_way.y());
        (isAcross ? m_way.ry() : m_way.rx()) = 0;
        (isAcross ? moving.down : moving.across) = {};
    }
    if (m_snapLines) {
        m_way += m_snapLines->shiftFor(m_area.translated(m_way), moving, tolerance);
        m_marks = m_snapLines->marksFor(m_area.translated(wholePixels(m_way)), moving);
    }
    for (const Start &start : std::as_const(m_items)) {
        if (const FramedItem *item = FramedItem::of(start.object)) {
            item->graphic()->setPos(start.position + wayOf(*item->graphic()));
        }
    }
}

QPoint CanvasGesture::wayOf(const QGraphicsItem &item) const
{
    const QGraphicsItem *parent = item.parentItem();
    const QPointF way =
        parent ? parent->mapFromScene(m_start + m_way) - parent->mapFromScene(m_start) : m_way;
    return way.toPoint();
}

void CanvasGesture::resizeItem(FramedItem &item, const Start &start, const QPointF &point, double tolerance)
{
    const FramePoint &handle = FramePoint::of(m_handle);
    const auto resizeTo = [&](const QPointF &corner) {
        const QPointF inside = wholePixels(item.graphic()->mapFromScene(corner));
        const QSizeF size = handle.sizeAt(item.frame(), inside, item.minSize());
        item.resizeByMouse(m_handle, size, handle.topLeftAt(item.frame(), size));
    };
    const QPointF corner = point + start.position;
    resizeTo(corner);
    if (!m_snapLines || !isUpright(item)) {
        return;
    }
    const QPointF snapped = snappedCorner(item, corner, tolerance);
    if (snapped != corner) {
        resizeTo(snapped);
    }
    const auto edgeOf = [](int direction) {
        return direction < 0 ? SnapLines::Low : direction > 0 ? SnapLines::High : SnapLines::Edges();
    };
    m_marks = m_snapLines->marksFor(item.sceneArea(), {edgeOf(handle.horizontal), edgeOf(handle.vertical)});
}

//! Where the handle must be so that the edges that it moves snap.
QPointF CanvasGesture::snappedCorner(const FramedItem &item, const QPointF &corner, double tolerance) const
{
    const FramePoint &handle = FramePoint::of(m_handle);
    const QPointF place = item.keepsRatio() ? item.handlePoint(m_handle) : corner;
    const auto edgeIf = [](int direction) {
        return direction ? SnapLines::Edges(SnapLines::Low) : SnapLines::Edges();
    };
    QPointF shift = m_snapLines->shiftFor(QRectF(place, QSizeF()),
                                          {edgeIf(handle.horizontal), edgeIf(handle.vertical)}, tolerance);
    if (!item.keepsRatio() || shift.isNull()) {
        return place + shift;
    }
    // One edge can snap; the proportions determine the other. The larger direction counts, so reduce the one
    // that does not.
    const bool takesAcross = shift.y() == 0 || (shift.x() != 0 && std::abs(shift.x()) <= std::abs(shift.y()));
    const QPointF fixed = item.handlePoint(handle.opposite().origin);
    return takesAcross ? QPointF(place.x() + shift.x(), handle.vertical ? fixed.y() : place.y())
                       : QPointF(handle.horizontal ? fixed.x() : place.x(), place.y() + shift.y());
}

QString CanvasGesture::text() const
{
    using Common::LocalizationHelper;
    if (m_items.size() > 1) {
        return LocalizationHelper::coreString(u"Move %1 elements"_s).arg(m_items.size());
    }
    const QString name = m_items.constFirst().object->getIdName();
    switch (m_kind) {
    case Kind::Move:
        return LocalizationHelper::coreString(u"Move \"%1\""_s).arg(name);
    case Kind::Resize:
        return LocalizationHelper::coreString(u"Resize \"%1\""_s).arg(name);
    case Kind::Turn:
        break;
    }
    return LocalizationHelper::coreString(u"Rotate \"%1\""_s).arg(name);
}

SharedProperty CanvasGesture::movedProperty(const DesignerObject &object) const
{
    return object.getProperty(m_kind == Kind::Turn ? u"rotation" : u"position");
}

std::unique_ptr<UndoCommand> CanvasGesture::command()
{
    auto whole = std::make_unique<UndoCommand>();
    for (Start &start : m_items) {
        FramedItem *item = FramedItem::of(start.object);
        if (!item) {
            continue;
        }
        if (m_kind == Kind::Resize) {
            item->updateResizedDataObjects(m_handle, whole.get());
        } else {
            start.isInCommand = item->updateDataObject(movedProperty(*start.object), whole.get());
        }
    }
    if (whole->childCount() == 0) {
        return nullptr;
    }
    whole->setText(text());
    return whole;
}

void CanvasGesture::release(bool isDone)
{
    for (const Start &start : std::as_const(m_items)) {
        FramedItem *item = isDone && start.isInCommand ? nullptr : FramedItem::of(start.object);
        if (item && m_kind == Kind::Resize) {
            item->setRatioForced(false);
            item->readDataObject();
        } else if (item) {
            item->updateGraphicsItem(movedProperty(*start.object));
        }
    }
    m_items.clear();
}

} // namespace Halvane::Corvex::Designer
