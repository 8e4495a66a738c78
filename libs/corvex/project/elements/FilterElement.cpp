// SPDX-License-Identifier: MIT
#include "corvex/project/elements/FilterElement.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/CollectionProperties.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

bool FilterElement::initializeProperties()
{
    static const PropertyTable table{
        row<ListValueProperty>("elements", "Elements", ListInfo())
            .description("The names of the elements that the filter lists.")
            .example("lamp | button")
            .rank(1)
            .references(Form::Names)
            .parameter("scopeType", u"Screen"_s)
            .parameter("filterType", u"Element"_s)
            .allowInvalid(),
    };
    return Element::initializeProperties() && addProperties(table);
}

QStringList FilterElement::elementNames() const
{
    return ListInfo(getProperty(u"elements")->valueString()).toList();
}

} // namespace Halvane::Corvex::Designer
