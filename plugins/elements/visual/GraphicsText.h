// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/graphics/GraphicsRectangle.h"

#include <QFont>

namespace Halvane::Corvex::Elements {

//! A text as the device draws it: on one line unless it contains line breaks, and beyond its frame if it is
//! too long.
class GraphicsText : public Designer::GraphicsRectangle
{
    CORVEX_CLASS_NAMES(GraphicsText, Designer::GraphicsRectangle)

public:
    using GraphicsRectangle::GraphicsRectangle;

    void setFrameSize(const QSizeF &size) override;
    void updateGraphicsItem(const Designer::SharedProperty &property) override;
    QRectF boundingRect() const override { return m_inkRect; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    void measure();

    QString m_text;
    QFont m_font;
    QColor m_color;
    Qt::Alignment m_alignment;
    QRectF m_inkRect; //!< the frame united with the drawn text
};

} // namespace Halvane::Corvex::Elements
