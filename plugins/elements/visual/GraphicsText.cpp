// SPDX-License-Identifier: MIT
#include "elements/visual/GraphicsText.h"

#include "corvex/core/properties/EnumProperty.h"
#include "corvex/values/text/ValueConversion.h"

#include <QFontMetricsF>
#include <QPainter>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! Font sizes are in points. The device has 96 pixels per inch, whatever the resolution of the designer's
//! display.
constexpr double pixelsPerPoint = 96.0 / 72;

QFont deviceFont(const QString &text)
{
    QFont font = ValueConversion::toFont(text);
    if (font.pointSizeF() > 0) {
        font.setPixelSize(std::max(qRound(font.pointSizeF() * pixelsPerPoint), 1));
    }
    return font;
}

Qt::Alignment alignmentOf(const DesignerProperty &property)
{
    return Qt::Alignment(valueAs<EnumProperty>(&property).value());
}

} // namespace

void GraphicsText::setFrameSize(const QSizeF &size)
{
    GraphicsRectangle::setFrameSize(size);
    measure();
}

void GraphicsText::measure()
{
    prepareGeometryChange();
    const int flags = int(m_alignment) | Qt::TextDontClip;
    // Italic letters extend a little beyond the measured rectangle.
    const QRectF ink = QFontMetricsF(m_font).boundingRect(frame(), flags, m_text).adjusted(-2, -2, 2, 2);
    m_inkRect = m_text.isEmpty() ? frame() : frame() | ink;
}

void GraphicsText::updateGraphicsItem(const SharedProperty &property)
{
    const QString id = property ? property->id() : QString();
    if (id == "text"_L1) {
        m_text = property->valueString();
    } else if (id == "font"_L1) {
        m_font = deviceFont(property->valueString());
    } else if (id == "color"_L1) {
        m_color = ValueConversion::toColor(property->valueString());
    } else if (id == "horizontalAlignment"_L1) {
        m_alignment = (m_alignment & Qt::AlignVertical_Mask) | alignmentOf(*property);
    } else if (id == "verticalAlignment"_L1) {
        m_alignment = (m_alignment & Qt::AlignHorizontal_Mask) | alignmentOf(*property);
    } else {
        GraphicsRectangle::updateGraphicsItem(property);
        return;
    }
    measure();
    update();
}

void GraphicsText::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setFont(m_font);
    painter->setPen(m_color);
    painter->drawText(frame(), int(m_alignment) | Qt::TextDontClip, m_text);
}

} // namespace Halvane::Corvex::Elements
