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

/*! What shows an object on the canvas: it ties the object to an item of Qt's graphics view, follows the
    object's properties, and turns what the mouse has done to the item into commands.

    While the mouse works, only the item changes; updateDataObject() then tells the model by way of the undo
    history, and readDataObject() takes the item back to what the model says.

    The item goes with its object, and with the list or the scene that holds it. A copy is tied to the same
   two and belongs to nobody.
*/
class CORVEX_EXPORT GraphicsItem : public ObjectView
{
    CORVEX_CLASS_NAMES(GraphicsItem, ObjectView)

public:
    ~GraphicsItem() override;
    GraphicsItem(const GraphicsItem &) = default;
    GraphicsItem &operator=(const GraphicsItem &) = default;

    //! The item that shows an object; null when none does.
    static GraphicsItem *of(const DesignerObject *object);
    //! The one that an item of a scene is the graphic of; null for any other item.
    static GraphicsItem *of(const QGraphicsItem *graphic);

    //! Takes over all properties of the object and shows the objects in its lists.
    bool initialize() override;
    //! Takes over all properties again.
    void readDataObject();

    DesignerObject *dataObject() const { return m_dataObject; }
    QGraphicsItem *graphic() const { return m_graphic; }
    bool isResizable() const { return m_isResizable; }
    void setResizable(bool on) { m_isResizable = on; }
    bool isRotatable() const { return m_isRotatable; }
    void setRotatable(bool on) { m_isRotatable = on; }
    bool isScalable() const { return m_isScalable; }
    void setScalable(bool on) { m_isScalable = on; }

    //! The point about which the item turns and scales.
    QQuickItem::TransformOrigin transformOrigin() const { return m_transformOrigin; }
    //! Puts the point where it belongs in the item as large as it is now.
    void updateTransformOriginPoint();

    // Shapes.
    //! The rectangle with the handles, in the item's own coordinates, as all shapes are.
    virtual QRectF frame() const;
    //! The rectangle whose nine points the item can turn about; the frame of most.
    virtual QRectF turningFrame() const { return frame(); }
    //! What the item covers.
    virtual QPainterPath getShape() const;
    QPainterPath itemShape() const { return getShape(); }
    //! The same on the screen: in the coordinates of the scene.
    QPainterPath screenShape() const;
    /*! The width, in the coordinates of the scene, of the zone around a handle in which the mouse catches it:
       5, and 5 pixels of the view when the scene is shown by one view that magnifies. */
    double detectionWidth() const;

    // The mouse. Points are in the coordinates of the scene unless said otherwise.
    //! The number of the point, of an item made of points, that lies there; 0 without one.
    virtual int getResizePointHandle(const QPointF &point, bool *found = nullptr) const;
    //! The handle that lies there; Center for none.
    virtual QQuickItem::TransformOrigin getResizeHandle(const QPointF &point, bool *found = nullptr) const;
    /*! Gives the item the size and the place of its top left, both in its own coordinates as they are before,
       that one of the rules below gave. An item that keeps its proportions takes the nearest that does. */
    virtual void resizeByMouse(QQuickItem::TransformOrigin handle, const QSizeF &size,
                               const QPointF &position);
    //! Moves a point of an item made of points.
    virtual void resizeByMouse(int pointHandle, const QPointF &point);
    //! Turns the item to an angle in degrees, clockwise.
    virtual void rotateByMouse(double angle);
    //! The least width and height that the mouse can give the item.
    virtual double minSize() const { return 1.0; }
    //! Whether resizing keeps the proportions: by the property "keepRatio", or because the user asks for it.
    virtual bool keepsRatio() const;
    void setRatioForced(bool on) { m_isRatioForced = on; }

    // To the model. Commands are made as children of \a parent.
    /*! The command that gives a property what the item shows; null when it has that already, or is none that
        items change. */
    virtual UndoCommand *updateDataObject(const SharedProperty &property, UndoCommand *parent);
    //! The commands for all that was resized by a handle, whose number is that of its TransformOrigin.
    virtual void updateResizedDataObjects(int handle, UndoCommand *parent);

    // From the model.
    void updateGraphicsItem(const SharedProperty &property) override;
    void addGraphicsItemChild(const SharedProperty &property, DesignerObject *child) override;
    void removeGraphicsItemChild(const SharedProperty &property, DesignerObject *child) override;
    void orderGraphicsItemChildren(const SharedProperty &property) override;
    void objectGone() override;

    // How the handles resize: the edges on the side of the handle follow the point, those opposite stay, and
    // no length gets smaller than \a minimum.
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
    //! \a graphic may be the object under construction itself; it is not owned otherwise.
    GraphicsItem(DesignerObject *dataObject, QGraphicsItem *graphic);

    //! Puts the graphic of a child where it belongs, above those that are there: into this one.
    virtual void place(QGraphicsItem *child);
    //! What the item shows, as the text of the property with that id; null for those that items do not
    //! change.
    virtual QString shownValue(QStringView id) const;
    //! Runs when a child has come, or its place or its size is another.
    virtual void childChanged(const GraphicsItem &) { }
    //! Runs before a child goes that does not go with this item.
    virtual void childLeaves(const GraphicsItem &) { }
    //! Tells the item around this one and the canvas that the place or the size is another.
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
