// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/graphics/GraphicsRectangle.h"
#include "corvex/editors/expressions/ExpressionSample.h"

#include <QFont>

#include <memory>

namespace Halvane::Corvex::Elements {

//! A text as the device draws it: on one line unless it contains line breaks, and beyond its frame if it is
//! too long. The sample of an expression is its value with the values of the variables in the project.
class GraphicsText : public Designer::GraphicsRectangle
{
    CORVEX_CLASS_NAMES(GraphicsText, Designer::GraphicsRectangle)

public:
    using GraphicsRectangle::GraphicsRectangle;

    void setFrameSize(const QSizeF &size) override;
    void updateGraphicsItem(const Designer::SharedProperty &property) override;
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    void outdate();
    void measure() const;
    using Sample = std::unique_ptr<Designer::ExpressionSample>;
    void bind(Sample &sample, const Designer::SharedProperty &expression);
    QString sampleText() const;

    Sample m_sample; //!< of the text; null without an expression
    Sample m_colorSample;
    QString m_text;
    QFont m_font;
    QColor m_color;
    Qt::Alignment m_alignment;
    // Measured when they are needed, because a new item gets one property after the other.
    mutable QString m_shown;
    mutable QColor m_shownColor;
    mutable QRectF m_inkRect; //!< the frame united with the drawn text
    mutable bool m_isOutdated = true;
};

} // namespace Halvane::Corvex::Elements
