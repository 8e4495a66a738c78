// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/graphics/GraphicsItem.h"

#include <QGraphicsItem>

namespace Halvane::Corvex::Designer {

//! An item with eight resize handles on its frame and a grip above it for rotation.
class CORVEX_EXPORT FramedItem : public GraphicsItem
{
    CORVEX_CLASS_NAMES(FramedItem, GraphicsItem)

public:
    //! The framed item that shows an object; null if the object is not shown by one.
    static FramedItem *of(const DesignerObject *object)
    {
        return framed(object ? object->graphicsItem() : nullptr);
    }
    //! The framed item of a graphic in a scene; null for any other graphic.
    static FramedItem *of(const QGraphicsItem *graphic) { return framed(GraphicsItem::of(graphic)); }

    QQuickItem::TransformOrigin getResizeHandle(const QPointF &point, bool *found = nullptr) const override;
    using GraphicsItem::resizeByMouse;
    void resizeByMouse(QQuickItem::TransformOrigin handle, const QSizeF &size,
                       const QPointF &position) override;
    void rotateByMouse(double angle) override;

    //! The rectangle around the frame in scene coordinates.
    QRectF sceneArea() const { return graphic()->mapRectToScene(frame()); }
    //! The middle of a handle in scene coordinates.
    QPointF handlePoint(QQuickItem::TransformOrigin handle) const;
    //! The middle of the grip in scene coordinates.
    QPointF rotationGrip() const;
    bool isRotationGrip(const QPointF &point) const;
    //! The handles that fit on the frame at its current size on the canvas.
    QList<QQuickItem::TransformOrigin> shownHandles() const;

    //! Resizes the frame. Its top left may move in the item's own coordinates.
    virtual void setFrameSize(const QSizeF &size) = 0;

protected:
    using GraphicsItem::GraphicsItem;
    //! The size whose proportions resizing may have to keep.
    virtual QSizeF proportions() const = 0;

private:
    static FramedItem *framed(ObjectView *view)
    {
        return view && view->isKindOfClass(kindName()) ? static_cast<FramedItem *>(view) : nullptr;
    }
    bool isInZone(const QPointF &zone, const QPointF &point) const;
};

} // namespace Halvane::Corvex::Designer
