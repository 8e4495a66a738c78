// SPDX-License-Identifier: MIT
#include "corvex/project/UpdateObjects.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/ObjectListProperty.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

QString UpdateObjects::baseName() const
{
    return u"UpdateObjects"_s;
}

QString UpdateObjects::displayName() const
{
    return Common::LocalizationHelper::coreString(u"Update Objects"_s);
}

ObjectView *UpdateObjects::createGraphicsItem()
{
    return nullptr;
}

bool UpdateObjects::initializeProperties()
{
    static const PropertyTable table{
        row<ObjectListProperty>("objects", "Objects", OrderRule::InsertionOrder)
            .description("The objects whose values are updated.")
            .rank(1),
    };
    return DesignerObject::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Designer
