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
        visualElementRow("visualElement", "Visual Element").rank(1),
        stateRow("normalState", "Normal State").rank(2).statesOf("visualElement").needsPictures(),
        stateRow("pressedState", "Pressed State").rank(3).statesOf("visualElement").needsPictures(),
        expressionRow("pressed", "When Pressed", "PropertyChangesEditor")
            .rank(4)
            .validator(&codeValidator<GeneralDataList::AssignExpression>)
            .qml(&assignmentsToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
