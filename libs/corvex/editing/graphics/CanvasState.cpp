// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/CanvasState.h"

#include "corvex/editing/graphics/CanvasScene.h"
#include "corvex/editing/graphics/GraphicsItem.h"

#include <QGraphicsItem>

namespace Halvane::Corvex::Designer {

namespace {

//! A dynamic property of the object, so that the state survives its removal and the undo.
constexpr const char *key = "canvasState";

} // namespace

CanvasState::Flags CanvasState::of(const DesignerObject *object)
{
    return Flags(object ? object->property(key).toInt() : 0);
}

void CanvasState::set(DesignerObject *object, Flags flags)
{
    object->setProperty(key, flags ? QVariant(flags.toInt()) : QVariant());
    if (GraphicsItem *item = GraphicsItem::of(object)) {
        item->updateGraphicsItem(object->getProperty(u"visible"));
        if (auto *canvas = qobject_cast<CanvasScene *>(item->graphic()->scene())) {
            canvas->outlineLater();
        }
    }
}

bool CanvasState::has(const DesignerObject *object, Flag flag)
{
    for (; object; object = object->ownerObject()) {
        if (of(object).testFlag(flag)) {
            return true;
        }
    }
    return false;
}

bool CanvasState::isFree(const DesignerObject *object)
{
    return !has(object, Locked) && !has(object, Hidden);
}

} // namespace Halvane::Corvex::Designer
