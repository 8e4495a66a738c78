// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/ObjectView.h"

#include <QPainterPath>
#include <QPointer>
#include <QQuickItem>

class QGraphicsItem;

namespace Halvane::Corvex::Designer {

class UndoCommand;

/*! Shows an object on the canvas: connects it to an item of Qt's graphics view, follows the object's
    properties, and turns mouse actions into commands.

    While the mouse is pressed, only the item changes. updateDataObject() then changes the model through the
    undo history, and readDataObject() resets the item to the values in the model.

    The item is deleted together with its object, and with the list or the scene that contains it. A copy
    shows the same object with the same graphic and has no owner.
*/
class CORVEX_EXPORT GraphicsItem : public ObjectView
{
    CORVEX_CLASS_NAMES(GraphicsItem, ObjectView)

public:
    ~GraphicsItem() override;
    GraphicsItem(const GraphicsItem &) = default;
    GraphicsItem &operator=(const GraphicsItem &) = default;

    //! The item that shows an object; null if it is not shown.
    static GraphicsItem *of(const DesignerObject *object);
    //! The item of a graphic in a scene; null for any other graphic.
    static GraphicsItem *of(const QGraphicsItem *graphic);

    //! Reads all properties of the object and creates items for the objects in its lists.
    bool initialize() override;
    //! Reads all properties again.
    void readDataObject();

    DesignerObject *dataObject() const { return m_dataObject; }
    QGraphicsItem *graphic() const { return m_graphic; }
    bool isResizable() const { return m_isResizable; }
    void setResizable(bool on) { m_isResizable = on; }
    bool isRotatable() const { return m_isRotatable; }
    void setRotatable(bool on) { m_isRotatable = on; }
    bool isScalable() const { return m_isScalable; }
    void setScalable(bool on) { m_isScalable = on; }

    //! The point about which the item rotates and scales.
    QQuickItem::TransformOrigin transformOrigin() const { return m_transformOrigin; }
    //! Updates the position of that point after a change of the item's size.
    void updateTransformOriginPoint();

    // Shapes, in the item's own coordinates unless stated otherwise.
    //! The rectangle with the handles.
    virtual QRectF frame() const;
    //! The rectangle with the nine points about which the item can rotate; usually the frame.
    virtual QRectF turningFrame() const { return frame(); }
    //! The area that the item covers.
    virtual QPainterPath getShape() const;
    QPainterPath itemShape() const { return getShape(); }
    //! The same area in scene coordinates.
    QPainterPath screenShape() const;
    //! The width, in scene coordinates, of the zone in which the mouse catches a handle: 5 or, in a scene
    //! with a single magnified view, 5 pixels of that view.
    double detectionWidth() const;

    // Mouse actions. Points are in scene coordinates unless stated otherwise.
    //! For items made of points: the number of the point at that position; 0 if no point is there.
    virtual int getResizePointHandle(const QPointF &point, bool *found = nullptr) const;
    //! The handle at that position; Center if no handle is there.
    virtual QQuickItem::TransformOrigin getResizeHandle(const QPointF &point, bool *found = nullptr) const;
    //! Resizes and moves the item. \a size and the position of the top left are in the item's coordinates
    //! before the change, as the functions below compute them. An item that keeps its proportions uses the
    //! nearest allowed size.
    virtual void resizeByMouse(QQuickItem::TransformOrigin handle, const QSizeF &size,
                               const QPointF &position);
    //! For items made of points: moves a point.
    virtual void resizeByMouse(int pointHandle, const QPointF &point);
    //! Rotates the item clockwise to an angle in degrees.
    virtual void rotateByMouse(double angle);
    //! The minimum width and height that the mouse can set.
    virtual double minSize() const { return 1.0; }
    //! Whether resizing keeps the proportions, because of the property "keepRatio" or on the user's request.
    virtual bool keepsRatio() const;
    void setRatioForced(bool on) { m_isRatioForced = on; }

    // Updates of the model. Commands become children of \a parent.
    //! The command that sets a property to the value shown; null if nothing changes or items do not change
    //! that property.
    virtual UndoCommand *updateDataObject(const SharedProperty &property, UndoCommand *parent);
    //! The commands for everything that a handle resized. \a handle is the number of its TransformOrigin.
    virtual void updateResizedDataObjects(int handle, UndoCommand *parent);

    // Updates from the model.
    void updateGraphicsItem(const SharedProperty &property) override;
    void addGraphicsItemChild(const SharedProperty &property, DesignerObject *child) override;
    void removeGraphicsItemChild(const SharedProperty &property, DesignerObject *child) override;
    void orderGraphicsItemChildren(const SharedProperty &property) override;
    void objectGone() override;

    // How the handles resize: the edges on the side of the handle follow the point, the opposite edges stay
    // in place, and no length becomes smaller than \a minimum.
    static void resizeTopLeft(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                              double minimum);
    static void resizeTop(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                          double minimum);
    static void resizeTopRight(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                               double minimum);
    static void resizeRight(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                            double minimum);
    static void resizeBottomRight(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                                  double minimum);
    static void resizeBottom(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                             double minimum);
    static void resizeBottomLeft(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                                 double minimum);
    static void resizeLeft(const QRectF &rect, const QPointF &point, QSizeF &size, QPointF &position,
                           double minimum);

protected:
    //! \a graphic may be the object under construction itself. Otherwise it is not owned.
    GraphicsItem(DesignerObject *dataObject, QGraphicsItem *graphic);

    //! Adds the graphic of a child to this one, above the existing children.
    virtual void place(QGraphicsItem *child);
    //! The value shown, as the text of the property with that id; null if items do not change that property.
    virtual QString shownValue(QStringView id) const;
    //! Called when a child was added, moved or resized.
    virtual void childChanged(const GraphicsItem &) { }
    //! Called before a child is removed, unless this item is deleted, too.
    virtual void childLeaves(const GraphicsItem &) { }
    //! Notifies the parent item and the canvas of a new position or size.
    void announcePlace() const;

private:
    QPointer<DesignerObject> m_dataObject;
    QGraphicsItem *m_graphic = nullptr;
    QQuickItem::TransformOrigin m_transformOrigin = QQuickItem::Center;
    bool m_isResizable = false;
    bool m_isRotatable = false;
    bool m_isScalable = false;
    bool m_isRatioForced = false;
};

} // namespace Halvane::Corvex::Designer
