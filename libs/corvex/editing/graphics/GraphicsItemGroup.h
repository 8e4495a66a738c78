// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/editing/graphics/MemberBounds.h"

#include <QGraphicsItem>

namespace Halvane::Corvex::Designer {

/*! Holds the items of a group's members. Its frame is the rectangle around what the members cover, turned as
    they are. To resize it is to resize and move all members; it keeps its proportions when a member does, or
    when one is turned, since what is turned cannot be stretched in one direction of the group. */
class CORVEX_EXPORT GraphicsItemGroup
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
    //! With the place of the group, even when it stays the same: it belongs to the size that the members
    //! give.
    void updateResizedDataObjects(int handle, UndoCommand *parent) override;
    //! Whether the members are changing because the group is being resized.
    bool isChangingSize() const { return m_isChangingSize; }

    QRectF boundingRect() const override { return m_frame; }
    QPainterPath shape() const override { return getShape(); }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override { }

protected:
    QSizeF proportions() const override { return m_modelBounds.frame().size(); }
    void childChanged(const GraphicsItem &child) override;
    void childLeaves(const GraphicsItem &child) override;

private:
    QList<GraphicsItem *> members() const;
    void updateBoundingSize();
    void setBounds(const QRectF &frame, const QSizeF &turningSize);
    void takeModelBounds();
    void scaleMembers(double across, double down);

    QRectF m_frame;
    QSizeF m_turningSize;
    MemberBounds m_modelBounds; //!< of the members as they are in the model
    bool m_isChangingSize = false;
};

} // namespace Halvane::Corvex::Designer
