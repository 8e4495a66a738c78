// SPDX-License-Identifier: MIT
#include "corvex/variables/BACnetObject.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/GeneralDataListProperty.h"
#include "corvex/core/properties/StringProperty.h"
#include "corvex/core/properties/ValidationError.h"
#include "corvex/variables/BACnetPropertyList.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

bool validateName(const DesignerProperty *property, QString &error)
{
    return !property->valueString().isEmpty()
           || ValidationError::set(error, "BACnet Object name should be provided");
}

bool validateProperties(const DesignerProperty *property, QString &error)
{
    return BACnetPropertyList().read(static_cast<const GeneralDataListProperty *>(property)->value(), error);
}

} // namespace

bool BACnetObject::initializeProperties()
{
    static const PropertyTable table{
        fixedPersistence(false),
        row<StringProperty>("objectID", "Object Identifier", u"0,0"_s)
            .rank(12)
            .flags(15)
            .allowInvalid()
            .editor("BACObjIdEditor"),
        row<StringProperty>("bacnetObjName", "Object Name", QString())
            .rank(13)
            .flags(15)
            .allowInvalid()
            .validator(&validateName),
        row<GeneralDataListProperty>("properties", "Property List", GeneralDataList())
            .rank(14)
            .flags(15)
            .allowInvalid()
            .editor("BACnetPropertiesEditor")
            .validator(&validateProperties),
    };
    return DeviceVariable::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Designer
