// SPDX-License-Identifier: MIT
#include "corvex/variables/BACnetObject.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/ValidationError.h"
#include "corvex/variables/BACnetPropertyList.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

bool validateIdentifier(const DesignerProperty *property, QString &error)
{
    return BACnetObject::readIdentifier(property->valueString())
           || ValidationError::set(
               error, "The identifier must be an object type from 0 to 1023 and an instance from 0 "
                      "to 4194302, as in \"5,1\".");
}

bool validateName(const DesignerProperty *property, QString &error)
{
    return !property->valueString().isEmpty()
           || ValidationError::set(error, "BACnet Object name should be provided");
}

bool validatePropertyList(const DesignerProperty *property, QString &error)
{
    return BACnetPropertyList().read(valueAs<GeneralDataListProperty>(property), error);
}

} // namespace

std::optional<BACnetObject::Identifier> BACnetObject::readIdentifier(const QString &text)
{
    constexpr int highestType = 1023;
    constexpr int highestInstance = 4194302;
    const QStringList parts = text.split(u',');
    const auto number = [&parts](qsizetype index, int highest) {
        bool ok = false;
        const int read = parts.value(index).trimmed().toInt(&ok);
        return ok && read >= 0 && read <= highest ? read : -1;
    };
    const Identifier identifier{number(0, highestType), number(1, highestInstance)};
    const bool isGood = parts.size() == 2 && identifier.type >= 0 && identifier.instance >= 0;
    return isGood ? std::optional(identifier) : std::nullopt;
}

bool BACnetObject::initializeProperties()
{
    static const PropertyTable table{
        fixedPersistence(false),
        row<StringProperty>("objectID", "Object Identifier", u"0,0"_s)
            .description("The type and the instance of the object, each as its BACnet number.")
            .example("2,1")
            .rank(12)
            .allowInvalid()
            .editor("BACObjIdEditor")
            .validator(&validateIdentifier),
        row<StringProperty>("bacnetObjName", "Object Name", QString())
            .description("The name of the object, which is unique among the objects of the device.")
            .example("Level")
            .rank(13)
            .allowInvalid()
            .validator(&validateName),
        row<GeneralDataListProperty>("properties", "Property List", GeneralDataList())
            .description("The properties of the object, each with its data type and the variable or constant "
                         "that is its value.")
            .example("\"present-value\", \"real\", level, \"description\", \"character-string\", \"Level of "
                     "the tank\"")
            .rank(14)
            .allowInvalid()
            .editor("BACnetPropertiesEditor")
            .validator(&validatePropertyList),
    };
    return DeviceVariable::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Designer
