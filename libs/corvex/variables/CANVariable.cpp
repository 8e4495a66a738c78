// SPDX-License-Identifier: MIT
#include "corvex/variables/CANVariable.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/variables/CanParameterMap.h"

namespace Halvane::Corvex::Designer {

namespace {

bool validateParameterMap(const DesignerProperty *property, QString &error)
{
    return CanParameterMap().read(valueAs<GeneralDataListProperty>(property), error);
}

} // namespace

bool CANVariable::initializeProperties()
{
    static const PropertyTable table{
        fixedPersistence(false),
        row<GeneralDataListProperty>("parameterMap", "Parameter Map", GeneralDataList())
            .rank(12)
            .allowInvalid()
            .editor("CANVariableEditor")
            .validator(&validateParameterMap),
    };
    if (!DeviceVariable::initializeProperties() || !addProperties(table)) {
        return false;
    }
    m_parameterMap = getProperty(u"parameterMap");
    return true;
}

} // namespace Halvane::Corvex::Designer
