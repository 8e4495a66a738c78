// SPDX-License-Identifier: MIT
#include "elements/DataLogging.h"

#include "elements/Rows.h"
#include "elements/Statements.h"
#include "elements/Validators.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool DataLogging::initializeProperties()
{
    static const PropertyTable table{
        projectLinkRow("variable", "Log Variable", "LogVariable")
            .rank(1)
            .validator(&linkTargetValidator)
            .qml(&linkNameToQml),
    };
    return FunctionElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
