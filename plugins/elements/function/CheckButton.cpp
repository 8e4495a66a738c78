// SPDX-License-Identifier: MIT
#include "elements/function/CheckButton.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool CheckButton::initializeProperties()
{
    static const PropertyTable table{
        visualElementRow("visualElement", "Visual Element").rank(1),
        stateRow("checkedState", "Checked State").rank(2).needsPictures(),
        stateRow("uncheckedState", "Unchecked State").rank(3).needsPictures(),
        projectLinkRow("variable", "Variable", "BooleanVariable").rank(4).qml(&linkNameToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
