// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/graphics/FramedItem.h"
#include "corvex/values/records/BorderInfo.h"

#include <QColor>
#include <QGraphicsItem>

namespace Halvane::Corvex::Designer {

//! A rectangle with colour, inner border and rounded corners, as far as the object has these properties. An
//! element without colour and border gets an outline to make it visible.
class CORVEX_EXPORT GraphicsRectangle
    : public QGraphicsItem
    , public FramedItem
{
    CORVEX_CLASS_NAMES(GraphicsRectangle, FramedItem)

public:
    explicit GraphicsRectangle(DesignerObject *dataObject);

    QRectF frame() const override { return QRectF(QPointF(), m_size); }
    void setFrameSize(const QSizeF &size) override;
    //! Leaves room for the border on both sides.
    double minSize() const override;
    void updateGraphicsItem(const SharedProperty &property) override;

    QRectF boundingRect() const override { return frame(); }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    QSizeF proportions() const override { return m_proportions; }
    QString shownValue(QStringView id) const override;
    //! Shows another color than that of the property, until the property changes.
    void setColor(const QColor &color);

private:
    void updateAspectRatio();
    void paintSquare(QPainter &painter) const;
    void paintRound(QPainter &painter) const;

    QSizeF m_size;
    QSizeF m_proportions; //!< the size in the model
    QColor m_color = Qt::transparent;
    BorderInfo m_border;
    double m_radius = 0;
    bool m_hasLook = false;
};

} // namespace Halvane::Corvex::Designer
