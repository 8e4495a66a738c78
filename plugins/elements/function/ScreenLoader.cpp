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
        visualElementRow("visualElement", "Visual Element").rank(1),
        projectLinkRow("screen", "Screen", "Screen")
            .rank(2)
            .validator(&linkTargetValidator)
            .qml(&screenLinkToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
