// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/ScreenRectangle.h"

#include <QGraphicsScene>

#include <limits>

namespace Halvane::Corvex::Designer {

ScreenRectangle::ScreenRectangle(DesignerObject *screen)
    : GraphicsRectangle(screen)
{
    setZValue(std::numeric_limits<double>::lowest());
}

ScreenRectangle::~ScreenRectangle()
{
    // Not if another item shows the screen by now, or if the screen is being deleted together with its
    // elements.
    if (dataObject() && dataObject()->graphicsItem() == this) {
        qDeleteAll(elementItems());
    }
}

QList<GraphicsItem *> ScreenRectangle::elementItems() const
{
    QList<GraphicsItem *> items;
    const QList<DesignerObject *> children =
        dataObject() ? dataObject()->childObjects() : QList<DesignerObject *>();
    for (const DesignerObject *child : children) {
        if (GraphicsItem *item = of(child)) {
            items.append(item);
        }
    }
    return items;
}

void ScreenRectangle::place(QGraphicsItem *child)
{
    if (scene()) {
        scene()->addItem(child);
    }
}

QVariant ScreenRectangle::itemChange(GraphicsItemChange change, const QVariant &value)
{
    if (change == ItemSceneChange && scene()) {
        for (const GraphicsItem *item : elementItems()) {
            scene()->removeItem(item->graphic());
        }
    } else if (change == ItemSceneHasChanged) {
        // List order is drawing order.
        for (const GraphicsItem *item : elementItems()) {
            place(item->graphic());
        }
    }
    return GraphicsRectangle::itemChange(change, value);
}

} // namespace Halvane::Corvex::Designer
