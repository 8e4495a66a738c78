// SPDX-License-Identifier: MIT
#include "elements/function/ScreenLoader.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool ScreenLoader::initializeProperties()
{
    static const PropertyTable table{
        visualElementRow("visualElement", "Visual Element", "The visual element that the operator touches.")
            .rank(1),
        projectLinkRow("screen", "Screen", "The screen that is shown after the touch.", "Screen")
            .rank(2)
            .validator(&linkTargetValidator)
            .qml(&screenLinkToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
