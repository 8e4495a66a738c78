// SPDX-License-Identifier: MIT
#include "corvex/variables/ColorVariable.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/ColorProperties.h"

namespace Halvane::Corvex::Designer {

QVariant ColorVariable::typedValue(QStringView text)
{
    bool ok = false;
    const QColor color = ValueConversion::toColor(text, &ok);
    return ok ? QVariant(color) : QVariant();
}

SharedProperty ColorVariable::initializeValueProperty()
{
    static const PropertyRow prototype =
        row<ColorProperty>("value", "Variable Value", QColor(Qt::black))
            .description("The color that the variable has when the device starts.")
            .rank(10)
            .allowInvalid();
    return prototype.make(this);
}

} // namespace Halvane::Corvex::Designer
