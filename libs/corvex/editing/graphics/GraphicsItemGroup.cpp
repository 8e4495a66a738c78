// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/GraphicsItemGroup.h"

#include "corvex/editing/commands/objects/ChangeProperty.h"

#include <QScopedValueRollback>

#include <cmath>

namespace Halvane::Corvex::Designer {

namespace {

//! These functions use the coordinates of the group.
QRectF coveredBy(const GraphicsItem &member)
{
    return member.graphic()->mapRectToParent(member.frame());
}

//! The far corner of the member as if it were not rotated.
QPointF farCorner(const GraphicsItem &member)
{
    return member.graphic()->pos() + member.turningFrame().bottomRight();
}

} // namespace

GraphicsItemGroup::GraphicsItemGroup(DesignerObject *dataObject)
    : FramedItem(dataObject, this)
{
    setFlag(ItemHasNoContents);
    setResizable(true);
}

QList<GraphicsItem *> GraphicsItemGroup::members() const
{
    QList<GraphicsItem *> items;
    for (const QGraphicsItem *child : childItems()) {
        if (GraphicsItem *item = of(child)) {
            items.append(item);
        }
    }
    return items;
}

QPainterPath GraphicsItemGroup::getShape() const
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const GraphicsItem *member : members()) {
        path.addPath(member->graphic()->mapToParent(member->getShape()));
    }
    return path;
}

bool GraphicsItemGroup::keepsRatio() const
{
    const QList<GraphicsItem *> all = members();
    return FramedItem::keepsRatio() || std::ranges::any_of(all, [](const GraphicsItem *member) {
               return member->keepsRatio() || std::fmod(member->graphic()->rotation(), 180) != 0;
           });
}

void GraphicsItemGroup::childChanged(const GraphicsItem &child)
{
    if (!m_isChangingSize) {
        m_modelBounds.set(&child, coveredBy(child), farCorner(child));
        takeModelBounds();
    }
}

void GraphicsItemGroup::childLeaves(const GraphicsItem &child)
{
    m_modelBounds.remove(&child);
    takeModelBounds();
}

void GraphicsItemGroup::takeModelBounds()
{
    const QRectF frame = m_modelBounds.frame();
    const QSizeF reach = m_modelBounds.reach();
    if (frame != m_frame || reach != m_turningSize) {
        setBounds(frame, reach);
        announcePlace();
    }
}

void GraphicsItemGroup::updateBoundingSize()
{
    QRectF frame;
    QSizeF reach(0, 0);
    for (const GraphicsItem *member : members()) {
        frame |= coveredBy(*member);
        const QPointF corner = farCorner(*member);
        reach = reach.expandedTo({corner.x(), corner.y()});
    }
    setBounds(frame, reach);
}

void GraphicsItemGroup::setBounds(const QRectF &frame, const QSizeF &turningSize)
{
    prepareGeometryChange();
    m_frame = frame;
    m_turningSize = turningSize;
    updateTransformOriginPoint();
}

void GraphicsItemGroup::updateResizedDataObjects(int handle, UndoCommand *parent)
{
    const int before = parent->childCount();
    for (GraphicsItem *member : members()) {
        member->updateResizedDataObjects(handle, parent);
    }
    if (dataObject() && parent->childCount() > before) {
        new ChangeProperty(dataObject()->getProperty(u"position"), shownValue(u"position"), true, parent);
    }
}

void GraphicsItemGroup::setFrameSize(const QSizeF &size)
{
    const QRectF modelFrame = m_modelBounds.frame();
    if (modelFrame.isEmpty()) {
        return;
    }
    const QScopedValueRollback changing(m_isChangingSize, true);
    // Always start from the sizes in the model, so that rounding errors do not add up during the gesture.
    for (GraphicsItem *member : members()) {
        member->readDataObject();
    }
    scaleMembers(size.width() / modelFrame.width(), size.height() / modelFrame.height());
}

void GraphicsItemGroup::scaleMembers(double across, double down)
{
    const QScopedValueRollback changing(m_isChangingSize, true);
    for (GraphicsItem *member : members()) {
        QGraphicsItem *graphic = member->graphic();
        if (member->isKindOfClass(kindName())) {
            static_cast<GraphicsItemGroup *>(member)->scaleMembers(across, down);
        } else if (member->isKindOfClass(FramedItem::kindName()) && member->isResizable()) {
            const QSizeF size = member->frame().size();
            const QSizeF least(member->minSize(), member->minSize());
            static_cast<FramedItem *>(member)->setFrameSize(
                QSizeF(size.width() * across, size.height() * down).expandedTo(least));
            member->updateTransformOriginPoint();
        }
        graphic->setPos(graphic->x() * across, graphic->y() * down);
    }
    updateBoundingSize();
}

} // namespace Halvane::Corvex::Designer
