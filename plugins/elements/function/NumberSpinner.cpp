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
        visualElementRow("incVisualElement", "Increment Element").rank(1),
        visualElementRow("decVisualElement", "Decrement Element").rank(2),
        stateRow("incNormalState", "Increment Normal State")
            .rank(3)
            .statesOf("incVisualElement")
            .needsPictures(),
        stateRow("incPressedState", "Increment Pressed State")
            .rank(4)
            .statesOf("incVisualElement")
            .needsPictures(),
        stateRow("decNormalState", "Decrement Normal State").rank(5).statesOf("decVisualElement"),
        stateRow("decPressedState", "Decrement Pressed State").rank(6).statesOf("decVisualElement"),
        projectLinkRow("variable", "Variable", "NumberVariable").rank(7).qml(&linkNameToQml),
        row<RealProperty>("step", "Step", 1.0).rank(8).parameter("above", 0).allowInvalid(),
        row<RangeProperty>("range", "Range", RangeInfo(0, 100))
            .rank(9)
            .parameter("rangeStyle", u"MinMax"_s)
            .allowInvalid(),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
