// SPDX-License-Identifier: MIT
#include "corvex/editing/graphics/GraphicsRectangle.h"

#include "corvex/values/text/ValueConversion.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

GraphicsRectangle::GraphicsRectangle(DesignerObject *dataObject)
    : FramedItem(dataObject, this)
    , m_hasLook(dataObject && (dataObject->getProperty(u"color") || dataObject->getProperty(u"border")))
{ }

double GraphicsRectangle::minSize() const
{
    return std::max(FramedItem::minSize(), 2.0 * m_border.width());
}

void GraphicsRectangle::setFrameSize(const QSizeF &size)
{
    prepareGeometryChange();
    m_size = size.expandedTo(QSizeF(0, 0));
}

void GraphicsRectangle::setColor(const QColor &color)
{
    m_color = color;
    update();
}

QString GraphicsRectangle::shownValue(QStringView id) const
{
    return id == "size"_L1 ? ValueConversion::toString(m_size) : FramedItem::shownValue(id);
}

void GraphicsRectangle::updateAspectRatio()
{
    m_proportions = m_size;
}

void GraphicsRectangle::updateGraphicsItem(const SharedProperty &property)
{
    const QString id = property ? property->id() : QString();
    if (id == "size"_L1) {
        setFrameSize(ValueConversion::toSize(property->valueString()));
        updateAspectRatio();
        updateTransformOriginPoint();
        announcePlace();
    } else if (id == "color"_L1) {
        m_color = ValueConversion::toColor(property->valueString());
    } else if (id == "border"_L1) {
        m_border = BorderInfo(property->valueString());
    } else if (id == "radius"_L1) {
        m_radius = ValueConversion::toReal(property->valueString());
    } else {
        FramedItem::updateGraphicsItem(property);
        return;
    }
    update();
}

void GraphicsRectangle::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const bool isTurned = painter->worldTransform().type() > QTransform::TxScale;
    painter->setRenderHint(QPainter::Antialiasing, isTurned || m_radius > 0);
    if (!m_hasLook) {
        painter->setPen(QPen(Qt::gray, 0, Qt::DashLine));
        painter->drawRect(frame());
    } else if (m_radius > 0) {
        paintRound(*painter);
    } else {
        paintSquare(*painter);
    }
}

void GraphicsRectangle::paintSquare(QPainter &painter) const
{
    const QRectF outer = frame();
    const double width = std::min({double(m_border.width()), outer.width() / 2, outer.height() / 2});
    const QRectF inner = outer.adjusted(width, width, -width, -width);
    painter.fillRect(inner, m_color);
    if (width > 0) {
        // Filled strips instead of a pen, so that the border covers whole pixels as on the device.
        const QColor &color = m_border.color();
        painter.fillRect(QRectF(outer.topLeft(), QPointF(outer.right(), inner.top())), color);
        painter.fillRect(QRectF(QPointF(outer.left(), inner.bottom()), outer.bottomRight()), color);
        painter.fillRect(QRectF(QPointF(outer.left(), inner.top()), inner.bottomLeft()), color);
        painter.fillRect(QRectF(inner.topRight(), QPointF(outer.right(), inner.bottom())), color);
    }
}

void GraphicsRectangle::paintRound(QPainter &painter) const
{
    const double half = m_border.width() / 2.0;
    painter.setBrush(m_color);
    painter.setPen(m_border.width() > 0 ? QPen(m_border.color(), m_border.width()) : QPen(Qt::NoPen));
    const double radius = std::max(m_radius - half, 0.0);
    painter.drawRoundedRect(frame().adjusted(half, half, -half, -half), radius, radius);
}

} // namespace Halvane::Corvex::Designer
