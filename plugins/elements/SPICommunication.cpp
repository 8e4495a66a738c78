// SPDX-License-Identifier: MIT
#include "elements/SPICommunication.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool SPICommunication::initializeProperties()
{
    static const PropertyTable table{
        expressionRow("dataValues", "Data Values", "VerticalMathExpressionEditor")
            .rank(1)
            .flags(ordinary)
            .validator(&termsValidator)
            .qml(&termsToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
