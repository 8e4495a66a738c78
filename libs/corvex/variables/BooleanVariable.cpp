// SPDX-License-Identifier: MIT
#include "corvex/variables/BooleanVariable.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

QVariant BooleanVariable::typedValue(QStringView text)
{
    const bool isTrue = text == "true"_L1;
    return isTrue || text == "false"_L1 ? QVariant(isTrue) : QVariant();
}

SharedProperty BooleanVariable::initializeValueProperty()
{
    static const PropertyRow prototype =
        row<BooleanProperty>("value", "Variable Value", false)
            .description("The value that the variable has when the device starts.")
            .rank(10)
            .allowInvalid();
    return prototype.make(this);
}

} // namespace Halvane::Corvex::Designer
