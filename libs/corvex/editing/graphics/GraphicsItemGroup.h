// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/editing/graphics/MemberBounds.h"

#include <QGraphicsItem>

namespace Halvane::Corvex::Designer {

/*! Contains the items of a group's members. Its frame is the bounding rectangle of the members, including
    their rotations. Resizing the group resizes and moves all members. It keeps its proportions if a member
    does, or if a member is rotated, because a rotated member cannot be stretched in one direction of the
    group.
*/
class CORVEX_EXPORT GraphicsItemGroup
    : public QGraphicsItem
    , public FramedItem
{
    CORVEX_CLASS_NAMES(GraphicsItemGroup, FramedItem)

public:
    explicit GraphicsItemGroup(DesignerObject *dataObject);

    QRectF frame() const override { return m_frame; }
    //! As on the device: from the group's origin to the far edges of the members, ignoring rotations.
    QRectF turningFrame() const override { return QRectF(QPointF(), m_turningSize); }
    QPainterPath getShape() const override;
    void setFrameSize(const QSizeF &size) override;
    bool keepsRatio() const override;
    //! Also sets the position of the group, even if it is unchanged, because it belongs to the size that
    //! results from the members.
    void updateResizedDataObjects(int handle, UndoCommand *parent) override;
    //! Whether members are changing because the group is being resized.
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
    MemberBounds m_modelBounds; //!< the bounds of the members in the model
    bool m_isChangingSize = false;
};

} // namespace Halvane::Corvex::Designer
