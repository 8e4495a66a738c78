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

} // namespace

CanvasGesture CanvasGesture::move(const QList<FramedItem *> &items, const QPointF &start)
{
    CanvasGesture gesture(Kind::Move, start);
    for (const FramedItem *item : items) {
        gesture.m_items.append({item->dataObject(), item->graphic()->pos(), 0});
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

void CanvasGesture::moveTo(const QPointF &point, Qt::KeyboardModifiers modifiers)
{
    const bool isShifted = modifiers.testFlag(Qt::ShiftModifier);
    for (const Start &start : std::as_const(m_items)) {
        FramedItem *item = FramedItem::of(start.object);
        if (!item) {
            continue;
        }
        switch (m_kind) {
        case Kind::Move:
            moveItem(*item, start, point);
            break;
        case Kind::Resize:
            item->setRatioForced(isShifted);
            resizeItem(*item, start, point);
            break;
        case Kind::Turn: {
            const double step = isShifted ? coarseTurnStep : turnStep;
            item->rotateByMouse(std::round((direction(*item, point) + start.angle) / step) * step);
            break;
        }
        }
    }
}

void CanvasGesture::moveItem(FramedItem &item, const Start &start, const QPointF &point) const
{
    const QGraphicsItem *parent = item.graphic()->parentItem();
    const QPointF way =
        parent ? parent->mapFromScene(point) - parent->mapFromScene(m_start) : point - m_start;
    item.graphic()->setPos(start.position + wholePixels(way));
}

void CanvasGesture::resizeItem(FramedItem &item, const Start &start, const QPointF &point) const
{
    const QPointF corner = wholePixels(item.graphic()->mapFromScene(point + start.position));
    const FramePoint &handle = FramePoint::of(m_handle);
    const QSizeF size = handle.sizeAt(item.frame(), corner, item.minSize());
    item.resizeByMouse(m_handle, size, handle.topLeftAt(item.frame(), size));
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
