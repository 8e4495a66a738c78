// SPDX-License-Identifier: MIT
#include "elements/function/NumberSpinner.h"

#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/RangeProperty.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool NumberSpinner::initializeProperties()
{
    static const PropertyTable table{
        visualElementRow("incVisualElement", "Increment Element",
                         "The visual element that increases the number when it is touched.")
            .rank(1),
        visualElementRow("decVisualElement", "Decrement Element",
                         "The visual element that decreases the number when it is touched.")
            .rank(2),
        stateRow("incNormalState", "Increment Normal State",
                 "The values that are set when the touch that increases ends.")
            .rank(3)
            .statesOf("incVisualElement")
            .needsPictures(),
        stateRow("incPressedState", "Increment Pressed State",
                 "The values that are set when the touch that increases begins.")
            .rank(4)
            .statesOf("incVisualElement")
            .needsPictures(),
        stateRow("decNormalState", "Decrement Normal State",
                 "The values that are set when the touch that decreases ends.")
            .rank(5)
            .statesOf("decVisualElement"),
        stateRow("decPressedState", "Decrement Pressed State",
                 "The values that are set when the touch that decreases begins.")
            .rank(6)
            .statesOf("decVisualElement"),
        projectLinkRow("variable", "Variable", "The number variable that the touches change.",
                       "NumberVariable")
            .rank(7)
            .qml(&linkNameToQml),
        row<RealProperty>("step", "Step", 1.0)
            .description("The number by which a touch changes the variable.")
            .rank(8)
            .parameter("above", 0)
            .allowInvalid(),
        row<RangeProperty>("range", "Range", RangeInfo(0, 100))
            .description("The smallest and the largest number that touches can reach.")
            .rank(9)
            .parameter("rangeStyle", u"MinMax"_s)
            .allowInvalid(),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
