// SPDX-License-Identifier: MIT
#include "elements/visual/GraphicsText.h"

#include "corvex/core/properties/EnumProperty.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/text/ValueConversion.h"

#include "elements/Rows.h"
#include "elements/visual/NumberFormat.h"

#include <QFontMetricsF>
#include <QPainter>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! Font sizes are in points. The device has 96 pixels per inch, whatever the resolution of the designer's
//! display.
constexpr double pixelsPerPoint = 96.0 / 72;

//! The properties of NumberFormat.
const QStringList formatIds{u"decimals"_s, u"thousands"_s, u"prefix"_s, u"suffix"_s};

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
    outdate();
}

void GraphicsText::outdate()
{
    prepareGeometryChange();
    m_isOutdated = true;
}

QRectF GraphicsText::boundingRect() const
{
    if (m_isOutdated) {
        measure();
    }
    return m_inkRect;
}

void GraphicsText::measure() const
{
    m_isOutdated = false;
    const QString value = m_sample ? sampleText() : QString();
    m_shown = value.isNull() ? m_text : value;
    const QColor color = m_colorSample ? QColor(m_colorSample->value()) : QColor();
    m_shownColor = color.isValid() ? color : m_color;
    const int flags = int(m_alignment) | Qt::TextDontClip;
    // Italic letters extend a little beyond the measured rectangle.
    const QRectF ink = QFontMetricsF(m_font).boundingRect(frame(), flags, m_shown).adjusted(-2, -2, 2, 2);
    m_inkRect = m_shown.isEmpty() ? frame() : frame() | ink;
}

void GraphicsText::bind(Sample &sample, const SharedProperty &expression)
{
    sample.reset();
    if (!expressionOf(*expression).isEmpty()) {
        sample = std::make_unique<ExpressionSample>(expression);
        QObject::connect(sample.get(), &ExpressionSample::changed, sample.get(), [this] {
            outdate();
            update();
        });
    }
}

QString GraphicsText::sampleText() const
{
    return m_sample->value(
        [this](const QString &code) { return NumberFormat::of(*dataObject()).apply(code); });
}

void GraphicsText::updateGraphicsItem(const SharedProperty &property)
{
    const QString id = property ? property->id() : QString();
    if (id == "text"_L1) {
        m_text = property->valueString();
    } else if (id == "textBinding"_L1) {
        bind(m_sample, property);
    } else if (id == "colorBinding"_L1) {
        bind(m_colorSample, property);
    } else if (id == "font"_L1) {
        m_font = deviceFont(property->valueString());
    } else if (id == "color"_L1) {
        m_color = ValueConversion::toColor(property->valueString());
    } else if (id == "horizontalAlignment"_L1) {
        m_alignment = (m_alignment & Qt::AlignVertical_Mask) | alignmentOf(*property);
    } else if (id == "verticalAlignment"_L1) {
        m_alignment = (m_alignment & Qt::AlignHorizontal_Mask) | alignmentOf(*property);
    } else if (!formatIds.contains(id)) {
        GraphicsRectangle::updateGraphicsItem(property);
        return;
    }
    outdate();
    update();
}

void GraphicsText::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (m_isOutdated) {
        measure();
    }
    painter->setFont(m_font);
    painter->setPen(m_shownColor);
    painter->drawText(frame(), int(m_alignment) | Qt::TextDontClip, m_shown);
}

} // namespace Halvane::Corvex::Elements
