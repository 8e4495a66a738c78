// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QGraphicsItem>
#include <QLineF>
#include <QList>
#include <QPointer>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class FramedItem;

//! The frames of the selected items, above all items. A single selected item also has handles and a grip.
//! Stores copies of the positions and does not use the items later.
class CORVEX_EXPORT SelectionOutline : public QGraphicsItem
{
public:
    SelectionOutline();

    //! Copies the current positions of the items. Without handles only frames are shown.
    //! \return the bounding rectangle of the frames
    QRectF follow(const QList<FramedItem *> &items, bool hasHandles);

    QRectF boundingRect() const override { return m_bounds; }
    //! Empty, so that the mouse never hits the outline.
    QPainterPath shape() const override { return {}; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    static void paintHandles(QPainter &painter, const FramedItem &item);

    QList<QLineF> m_frames;
    QRectF m_bounds;
    QPointer<DesignerObject>
        m_handled; //!< the object with handles; their number depends on its size in the view
};

} // namespace Halvane::Corvex::Designer
