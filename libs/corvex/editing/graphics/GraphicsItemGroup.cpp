// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/GraphicsItemGroup.h"

#include <QScopedValueRollback>

#include <cmath>

namespace Halvane::Corvex::Designer {

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

void GraphicsItemGroup::childrenChanged()
{
    if (!m_isChangingSize) {
        updateBoundingSize();
        m_modelFrame = m_frame;
        tellParent();
    }
}

void GraphicsItemGroup::updateBoundingSize()
{
    prepareGeometryChange();
    m_frame = {};
    m_turningSize = {0, 0};
    for (const GraphicsItem *member : members()) {
        m_frame |= member->graphic()->mapRectToParent(member->frame());
        const QPointF corner = member->graphic()->pos() + member->turningFrame().bottomRight();
        m_turningSize = m_turningSize.expandedTo({corner.x(), corner.y()});
    }
    updateTransformOriginPoint();
}

void GraphicsItemGroup::settle()
{
    const QPointF oldOrigin = transformOriginPoint();
    updateBoundingSize();
    const QPointF way = oldOrigin - transformOriginPoint();
    const QPointF turnedWay = mapToParent(way) - mapToParent(QPointF());
    setPos(pos() + way - turnedWay);
}

void GraphicsItemGroup::setFrameSize(const QSizeF &size)
{
    if (m_modelFrame.isEmpty()) {
        return;
    }
    const QScopedValueRollback changing(m_isChangingSize, true);
    // From the sizes in the model each time: nothing adds up while the mouse moves.
    for (GraphicsItem *member : members()) {
        member->readDataObject();
    }
    scaleMembers(size.width() / m_modelFrame.width(), size.height() / m_modelFrame.height());
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
