// SPDX-License-Identifier: MIT
#include "corvex/variables/StringVariable.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"

namespace Halvane::Corvex::Designer {

SharedProperty StringVariable::initializeValueProperty()
{
    static const PropertyRow prototype =
        row<StringProperty>("value", "Variable Value", QString())
            .description("The text that the variable has when the device starts.")
            .rank(10)
            .allowInvalid()
            .editor("PlainTextEditor");
    return prototype.make(this);
}

} // namespace Halvane::Corvex::Designer
