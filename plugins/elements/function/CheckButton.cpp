// SPDX-License-Identifier: MIT
#include "elements/function/CheckButton.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool CheckButton::initializeProperties()
{
    static const PropertyTable table{
        visualElementRow("visualElement", "Visual Element", "The visual element that the operator touches.")
            .rank(1),
        stateRow("checkedState", "Checked State", "The values that are set when the variable becomes true.")
            .rank(2)
            .needsPictures(),
        stateRow("uncheckedState", "Unchecked State",
                 "The values that are set when the variable becomes false.")
            .rank(3)
            .needsPictures(),
        projectLinkRow("variable", "Variable", "The boolean variable that each touch switches.",
                       "BooleanVariable")
            .rank(4)
            .qml(&linkNameToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
