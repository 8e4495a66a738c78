// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/GraphicsItem.h"

#include "corvex/core/properties/TransformOriginProperty.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/graphics/CanvasScene.h"
#include "corvex/editing/graphics/CanvasState.h"
#include "corvex/editing/graphics/FramePoint.h"
#include "corvex/values/text/ValueConversion.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The key under which a graphic stores its GraphicsItem.
constexpr int itemKey = 0;
constexpr double handleZone = 5;

bool isStored(const DesignerObject *object, QStringView id)
{
    const SharedProperty property = object ? object->getProperty(id) : SharedProperty();
    return property && property->hasFlag(StoredFlag);
}

//! How the common properties of elements are applied to the canvas. The model uses per cent.
constexpr struct
{
    QLatin1StringView id;
    bool isPlace;
    void (*show)(QGraphicsItem &graphic, const QString &value);
} shownProperties[] = {
    {"position"_L1, true,
     [](QGraphicsItem &graphic, const QString &value) { graphic.setPos(ValueConversion::toPoint(value)); }},
    {"rotation"_L1, true,
     [](QGraphicsItem &graphic, const QString &value) {
         graphic.setRotation(ValueConversion::toReal(value));
     }},
    {"scale"_L1, true,
     [](QGraphicsItem &graphic, const QString &value) {
         graphic.setScale(ValueConversion::toReal(value) / 100);
     }},
    {"opacity"_L1, false,
     [](QGraphicsItem &graphic, const QString &value) {
         graphic.setOpacity(ValueConversion::toReal(value) / 100);
     }},
    {"z"_L1, false,
     [](QGraphicsItem &graphic, const QString &value) { graphic.setZValue(ValueConversion::toReal(value)); }},
    {"visible"_L1, false,
     [](QGraphicsItem &graphic, const QString &value) {
         graphic.setVisible(ValueConversion::toBoolean(value));
     }},
};

//! Qt has no stacking order for top-level graphics outside of a scene.
void stackBelow(QGraphicsItem *graphic, const QGraphicsItem *above)
{
    if (graphic->parentItem() || graphic->scene()) {
        graphic->stackBefore(above);
    }
}

void resizeAt(QQuickItem::TransformOrigin handle, const QRectF &rect, const QPointF &point, QSizeF &size,
              QPointF &position, double minimum)
{
    const FramePoint &framePoint = FramePoint::of(handle);
    size = framePoint.sizeAt(rect, point, minimum);
    position = framePoint.topLeftAt(rect, size);
}

} // namespace

GraphicsItem::GraphicsItem(DesignerObject *dataObject, QGraphicsItem *graphic)
    : m_dataObject(dataObject)
    , m_graphic(graphic)
    , m_isResizable(isStored(dataObject, u"size"))
    , m_isRotatable(isStored(dataObject, u"rotation"))
    , m_isScalable(isStored(dataObject, u"scale"))
{
    if (m_graphic) {
        m_graphic->setData(itemKey, QVariant::fromValue(quintptr(this)));
        m_graphic->setFlag(QGraphicsItem::ItemIsSelectable, isStored(dataObject, u"position"));
    }
}

GraphicsItem::~GraphicsItem()
{
    if (m_dataObject && m_dataObject->graphicsItem() == this) {
        m_dataObject->resetGraphicsItem();
    }
}

GraphicsItem *GraphicsItem::of(const DesignerObject *object)
{
    ObjectView *view = object ? object->graphicsItem() : nullptr;
    return view && view->isKindOfClass(kindName()) ? static_cast<GraphicsItem *>(view) : nullptr;
}

GraphicsItem *GraphicsItem::of(const QGraphicsItem *graphic)
{
    return graphic ? reinterpret_cast<GraphicsItem *>(graphic->data(itemKey).value<quintptr>()) : nullptr;
}

bool GraphicsItem::initialize()
{
    if (!m_dataObject || !m_graphic) {
        return false;
    }
    readDataObject();
    for (const SharedProperty &property : m_dataObject->properties()) {
        if (!property->isList()) {
            continue;
        }
        for (DesignerObject *child : property->listItems()) {
            child->setGraphicsItem();
            if (const GraphicsItem *item = of(child)) {
                place(item->graphic());
                childChanged(*item);
            }
        }
    }
    return true;
}

void GraphicsItem::readDataObject()
{
    if (!m_dataObject) {
        return;
    }
    for (const SharedProperty &property : m_dataObject->properties()) {
        updateGraphicsItem(property);
    }
    for (const QGraphicsItem *child : m_graphic->childItems()) {
        if (GraphicsItem *item = of(child)) {
            item->readDataObject();
        }
    }
}

void GraphicsItem::place(QGraphicsItem *child)
{
    child->setParentItem(m_graphic);
}

void GraphicsItem::updateTransformOriginPoint()
{
    if (m_graphic) {
        m_graphic->setTransformOriginPoint(FramePoint::of(m_transformOrigin).in(turningFrame()));
    }
}

QRectF GraphicsItem::frame() const
{
    return m_graphic ? m_graphic->boundingRect() : QRectF();
}

QPainterPath GraphicsItem::getShape() const
{
    QPainterPath path;
    path.addRect(frame());
    return path;
}

QPainterPath GraphicsItem::screenShape() const
{
    return m_graphic ? m_graphic->mapToScene(getShape()) : getShape();
}

double GraphicsItem::detectionWidth() const
{
    const QGraphicsScene *scene = m_graphic ? m_graphic->scene() : nullptr;
    const QList<QGraphicsView *> views = scene ? scene->views() : QList<QGraphicsView *>();
    const double scale = views.size() == 1 ? views.constFirst()->transform().m11() : 1;
    return scale > 1 ? handleZone / scale : handleZone;
}

int GraphicsItem::getResizePointHandle(const QPointF &, bool *found) const
{
    if (found) {
        *found = false;
    }
    return 0;
}

QQuickItem::TransformOrigin GraphicsItem::getResizeHandle(const QPointF &, bool *found) const
{
    if (found) {
        *found = false;
    }
    return QQuickItem::Center;
}

void GraphicsItem::resizeByMouse(QQuickItem::TransformOrigin, const QSizeF &, const QPointF &) { }

void GraphicsItem::resizeByMouse(int, const QPointF &) { }

void GraphicsItem::rotateByMouse(double) { }

bool GraphicsItem::keepsRatio() const
{
    const SharedProperty property = m_dataObject ? m_dataObject->getProperty(u"keepRatio") : SharedProperty();
    return m_isRatioForced || (property && ValueConversion::toBoolean(property->valueString()));
}

QString GraphicsItem::shownValue(QStringView id) const
{
    if (id == "position"_L1) {
        return ValueConversion::toString(m_graphic->pos());
    }
    return id == "rotation"_L1 ? ValueConversion::toString(m_graphic->rotation()) : QString();
}

UndoCommand *GraphicsItem::updateDataObject(const SharedProperty &property, UndoCommand *parent)
{
    const QString value = property && m_graphic ? shownValue(property->id()) : QString();
    if (value.isNull() || property->equalsValue(value)) {
        return nullptr;
    }
    return new ChangeProperty(property, value, true, parent);
}

void GraphicsItem::updateResizedDataObjects(int handle, UndoCommand *parent)
{
    if (!m_dataObject || !m_graphic) {
        return;
    }
    updateDataObject(m_dataObject->getProperty(u"position"), parent);
    updateDataObject(m_dataObject->getProperty(u"size"), parent);
    for (const QGraphicsItem *child : m_graphic->childItems()) {
        if (GraphicsItem *item = of(child)) {
            item->updateResizedDataObjects(handle, parent);
        }
    }
}

void GraphicsItem::updateGraphicsItem(const SharedProperty &property)
{
    if (!property || !m_graphic) {
        return;
    }
    const QString id = property->id();
    if (id == "transformOrigin"_L1) {
        m_transformOrigin = TransformOriginProperty::stringToEnum(property->valueString());
        updateTransformOriginPoint();
        announcePlace();
        return;
    }
    const auto *const shown =
        std::ranges::find_if(shownProperties, [&](const auto &row) { return row.id == id; });
    if (shown != std::end(shownProperties)) {
        shown->show(*m_graphic, property->valueString());
        if (id == "visible"_L1 && CanvasState::of(m_dataObject).testFlag(CanvasState::Hidden)) {
            m_graphic->setVisible(false);
        }
        if (shown->isPlace) {
            announcePlace();
        }
    }
}

void GraphicsItem::announcePlace() const
{
    if (GraphicsItem *parent = of(m_graphic->parentItem())) {
        parent->childChanged(*this);
    }
    if (auto *canvas = qobject_cast<CanvasScene *>(m_graphic->scene())) {
        canvas->outlineLater();
    }
}

void GraphicsItem::addGraphicsItemChild(const SharedProperty &property, DesignerObject *child)
{
    const GraphicsItem *item = of(child);
    if (!property || !item || !m_graphic) {
        return;
    }
    place(item->graphic());
    // At this point it is on top.
    const QList<DesignerObject *> siblings = property->listItems();
    for (qsizetype index = property->getListItemIndex(child) + 1; index < siblings.size(); ++index) {
        if (const GraphicsItem *next = of(siblings.at(index))) {
            stackBelow(item->graphic(), next->graphic());
            break;
        }
    }
    childChanged(*item);
}

void GraphicsItem::removeGraphicsItemChild(const SharedProperty &, DesignerObject *child)
{
    if (GraphicsItem *item = of(child)) {
        childLeaves(*item);
        delete item;
    }
}

void GraphicsItem::orderGraphicsItemChildren(const SharedProperty &property)
{
    const QList<DesignerObject *> children = property ? property->listItems() : QList<DesignerObject *>();
    const QGraphicsItem *next = nullptr;
    for (auto child = children.crbegin(); child != children.crend(); ++child) {
        if (const GraphicsItem *item = of(*child)) {
            if (next) {
                stackBelow(item->graphic(), next);
            }
            next = item->graphic();
        }
    }
}

void GraphicsItem::objectGone()
{
    if (GraphicsItem *parent = m_graphic ? of(m_graphic->parentItem()) : nullptr) {
        parent->childLeaves(*this);
    }
    delete this;
}

void GraphicsItem::resizeTopLeft(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                                 double minimum)
{
    resizeAt(QQuickItem::TopLeft, rect, point, size, position, minimum);
}

void GraphicsItem::resizeTop(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                             double minimum)
{
    resizeAt(QQuickItem::Top, rect, point, size, position, minimum);
}

void GraphicsItem::resizeTopRight(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                                  double minimum)
{
    resizeAt(QQuickItem::TopRight, rect, point, size, position, minimum);
}

void GraphicsItem::resizeRight(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                               double minimum)
{
    resizeAt(QQuickItem::Right, rect, point, size, position, minimum);
}

void GraphicsItem::resizeBottomRight(const QRectF &rect, const QPointF &point, QSizeF &size,
                                     QPointF &position, double minimum)
{
    resizeAt(QQuickItem::BottomRight, rect, point, size, position, minimum);
}

void GraphicsItem::resizeBottom(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                                double minimum)
{
    resizeAt(QQuickItem::Bottom, rect, point, size, position, minimum);
}

void GraphicsItem::resizeBottomLeft(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                                    double minimum)
{
    resizeAt(QQuickItem::BottomLeft, rect, point, size, position, minimum);
}

void GraphicsItem::resizeLeft(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                              double minimum)
{
    resizeAt(QQuickItem::Left, rect, point, size, position, minimum);
}

} // namespace Halvane::Corvex::Designer
