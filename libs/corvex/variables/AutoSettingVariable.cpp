// SPDX-License-Identifier: MIT
#include "corvex/variables/AutoSettingVariable.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ExpressionProperties.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

QString AutoSettingVariable::configurationKey() const
{
    return u"%1.%2"_s.arg(m_typeOfObject->valueString(), getIdName());
}

bool AutoSettingVariable::initializeProperties()
{
    static const PropertyTable table{
        fixedPersistence(false),
        row<StringProperty>("typeOfObject", "Object Type", QString())
            .description("The class of the elements whose properties are saved.")
            .example("Rectangle")
            .rank(12)
            .allowInvalid()
            .editor("AutosaveObjectEditor"),
    };
    if (!ProjectVariable::initializeProperties() || !addProperties(table)) {
        return false;
    }
    m_typeOfObject = getProperty(u"typeOfObject");
    return true;
}

SharedProperty AutoSettingVariable::initializeValueProperty()
{
    static const PropertyRow prototype =
        row<GeneralDataListProperty>("value", "Value List", GeneralDataList())
            .description("The properties of elements whose values the device saves and restores.")
            .example("Main.lamp.color")
            .rank(10)
            .flags(3)
            .allowInvalid();
    return prototype.make(this);
}

} // namespace Halvane::Corvex::Designer
