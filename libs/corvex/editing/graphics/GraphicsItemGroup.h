// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/graphics/FramedItem.h"

#include <QGraphicsItem>

namespace Halvane::Corvex::Designer {

/*! Holds the items of a group's members. Its frame is the rectangle around what the members cover, turned as
    they are. To resize it is to resize and move all members; it keeps its proportions when a member does, or
    when one is turned, since what is turned cannot be stretched in one direction of the group. */
class GraphicsItemGroup
    : public QGraphicsItem
    , public FramedItem
{
    CORVEX_CLASS_NAMES(GraphicsItemGroup, FramedItem)

public:
    explicit GraphicsItemGroup(DesignerObject *dataObject);

    QRectF frame() const override { return m_frame; }
    //! As on the device: from the group's own zero point to the far edges of the members, turned or not.
    QRectF turningFrame() const override { return QRectF(QPointF(), m_turningSize); }
    QPainterPath getShape() const override;
    void setFrameSize(const QSizeF &size) override;
    bool keepsRatio() const override;
    /*! Takes over the places that the mouse has given to members. A group that is as large as its members
       reach turns about another point then; it gets the place in which none of them is seen to move by that.
     */
    void settle();
    //! Whether the members are changing because the group is being resized.
    bool isChangingSize() const { return m_isChangingSize; }

    QRectF boundingRect() const override { return m_frame; }
    QPainterPath shape() const override { return getShape(); }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override { }

protected:
    QSizeF proportions() const override { return m_modelFrame.size(); }
    void childrenChanged() override;

private:
    QList<GraphicsItem *> members() const;
    void updateBoundingSize();
    void scaleMembers(double across, double down);

    QRectF m_frame;
    QSizeF m_turningSize;
    QRectF m_modelFrame; //!< the frame around the members as they are in the model
    bool m_isChangingSize = false;
};

} // namespace Halvane::Corvex::Designer
