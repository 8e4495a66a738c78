// SPDX-License-Identifier: MIT
#include "elements/visual/GraphicsFilled.h"

#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/text/ValueConversion.h"

#include "elements/Rows.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

void GraphicsFilled::updateGraphicsItem(const SharedProperty &property)
{
    const QString id = property ? property->id() : QString();
    if (id == "colorBinding"_L1) {
        m_sample.reset();
        if (!expressionOf(*property).isEmpty()) {
            m_sample = std::make_unique<ExpressionSample>(property);
            QObject::connect(m_sample.get(), &ExpressionSample::changed, m_sample.get(),
                             [this] { showSample(); });
        }
        showSample();
        return;
    }
    GraphicsRectangle::updateGraphicsItem(property);
    if (id == "color"_L1 && m_sample) {
        showSample();
    }
}

void GraphicsFilled::showSample()
{
    const QColor color = m_sample ? QColor(m_sample->value()) : QColor();
    setColor(color.isValid() ? color
                             : ValueConversion::toColor(dataObject()->getProperty(u"color")->valueString()));
}

} // namespace Halvane::Corvex::Elements
