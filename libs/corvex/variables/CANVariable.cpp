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
            .description("The parameter group (PGN, priority, source address) and its parameters (SPN, unit, "
                         "place in the message, offset, range, scaling).")
            .example("61444, 3, 0, 190, \"rpm\", 4, 1, 16, 0f, 0f, 8031.875, 0.125")
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
