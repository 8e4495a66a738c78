// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/graphics/GraphicsItem.h"

namespace Halvane::Corvex::Designer {

//! An item with eight handles on its frame and a grip above it to turn it by.
class CORVEX_EXPORT FramedItem : public GraphicsItem
{
    CORVEX_CLASS_NAMES(FramedItem, GraphicsItem)

public:
    //! The item of such a kind that shows an object; null when none does.
    static FramedItem *of(const DesignerObject *object)
    {
        return framed(object ? object->graphicsItem() : nullptr);
    }
    //! The one that an item of a scene is the graphic of; null for any other item.
    static FramedItem *of(const QGraphicsItem *graphic) { return framed(GraphicsItem::of(graphic)); }

    QQuickItem::TransformOrigin getResizeHandle(const QPointF &point, bool *found = nullptr) const override;
    using GraphicsItem::resizeByMouse;
    void resizeByMouse(QQuickItem::TransformOrigin handle, const QSizeF &size,
                       const QPointF &position) override;
    void rotateByMouse(double angle) override;

    //! The middle of a handle in the coordinates of the scene.
    QPointF handlePoint(QQuickItem::TransformOrigin handle) const;
    //! The middle of the grip in the coordinates of the scene.
    QPointF rotationGrip() const;
    bool isRotationGrip(const QPointF &point) const;
    //! The handles that the frame, as large as it is on the canvas, has room for.
    QList<QQuickItem::TransformOrigin> shownHandles() const;

    //! Makes the frame that large; its top left may move in the item's own coordinates.
    virtual void setFrameSize(const QSizeF &size) = 0;

protected:
    using GraphicsItem::GraphicsItem;
    //! A size with the proportions that resizing may have to keep.
    virtual QSizeF proportions() const = 0;

private:
    static FramedItem *framed(ObjectView *view)
    {
        return view && view->isKindOfClass(kindName()) ? static_cast<FramedItem *>(view) : nullptr;
    }
    bool isInZone(const QPointF &zone, const QPointF &point) const;
};

} // namespace Halvane::Corvex::Designer
