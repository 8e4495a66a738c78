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

/*! The frames of the selected items; a single one has its handles and its grip too. It lies above all items.
    It shows them as they were when it took them over, and needs none of them afterwards. */
class CORVEX_EXPORT SelectionOutline : public QGraphicsItem
{
public:
    SelectionOutline();

    //! Takes over the items, and their places as they are now. Without handles there are the frames alone.
    //! \return the rectangle around the frames
    QRectF follow(const QList<FramedItem *> &items, bool hasHandles);

    QRectF boundingRect() const override { return m_bounds; }
    //! Nothing is ever hit.
    QPainterPath shape() const override { return {}; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    static void paintHandles(QPainter &painter, const FramedItem &item);

    QList<QLineF> m_frames;
    QRectF m_bounds;
    QPointer<DesignerObject>
        m_handled; //!< the object with handles, which depend on how large the view shows it
};

} // namespace Halvane::Corvex::Designer
