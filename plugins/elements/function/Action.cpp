// SPDX-License-Identifier: MIT
#include "elements/function/Action.h"

#include "corvex/core/properties/ExpressionProperties.h"

#include "elements/Rows.h"
#include "elements/Statements.h"

using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool Action::initializeProperties()
{
    static const PropertyTable table{
        row<PropertyChangeListProperty>("propertyChanges", "Property Changes", PropertyList())
            .description("The values that the action sets, each with its element and property.")
            .rank(1)
            .needsPictures()
            .flags(ordinary)
            .editor("PropertyChangesEditor")
            .qml(&changesToQml)
            .allowInvalid(),
    };
    return BasicAction::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
