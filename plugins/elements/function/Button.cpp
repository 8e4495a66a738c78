// SPDX-License-Identifier: MIT
#include "elements/function/Button.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool Button::initializeProperties()
{
    static const PropertyTable table{
        visualElementRow("visualElement", "Visual Element", "The visual element that the operator touches.")
            .rank(1),
        stateRow("normalState", "Normal State", "The values that are set when the touch ends.")
            .rank(2)
            .statesOf("visualElement")
            .needsPictures(),
        stateRow("pressedState", "Pressed State", "The values that are set when the touch begins.")
            .rank(3)
            .statesOf("visualElement")
            .needsPictures(),
        expressionRow("pressed", "When Pressed", "The assignments that are made when the element is touched.",
                      "PropertyChangesEditor")
            .rank(4)
            .validator(&codeValidator<GeneralDataList::AssignExpression>)
            .qml(&assignmentsToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
