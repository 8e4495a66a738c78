// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/ValueType.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/project/Project.h"
#include "corvex/values/text/ObjectPath.h"
#include "corvex/variables/ProjectVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

ValueType typeOfData(GeneralDataInfo::DataType type)
{
    switch (type) {
    case GeneralDataInfo::BooleanData:
        return ValueType::Boolean;
    case GeneralDataInfo::IntegerData:
    case GeneralDataInfo::FloatData:
    case GeneralDataInfo::NumberData:
        return ValueType::Number;
    case GeneralDataInfo::StringData:
        return ValueType::Text;
    case GeneralDataInfo::ColorData:
        return ValueType::Color;
    default:
        return ValueType::Unknown;
    }
}

} // namespace

ValueType valueTypeOfVariable(const QString &name, const Project &project)
{
    const auto *variable = static_cast<const ProjectVariable *>(project.variables()->getListItem(name));
    if (!variable) {
        return ValueType::Unknown;
    }
    if (variable->isFieldbus()) {
        return ValueType::Fieldbus;
    }
    switch (variable->variableType()) {
    case ProjectVariable::VariableType::BooleanVariable:
        return ValueType::Boolean;
    case ProjectVariable::VariableType::IntegerVariable:
    case ProjectVariable::VariableType::FloatVariable:
        return ValueType::Number;
    case ProjectVariable::VariableType::StringVariable:
        return ValueType::Text;
    case ProjectVariable::VariableType::ColorVariable:
        return ValueType::Color;
    default:
        return ValueType::Unknown;
    }
}

ValueType valueTypeOf(const GeneralDataInfo &term, const Project &project)
{
    switch (term.valueType()) {
    case GeneralDataInfo::VariableValue:
        return valueTypeOfVariable(term.value(), project);
    case GeneralDataInfo::ConstantValue:
    case GeneralDataInfo::ObjectValue:
        return typeOfData(term.dataType());
    default:
        return ValueType::Unknown;
    }
}

QString valueTypeName(ValueType type)
{
    static constexpr const char *names[] = {"a value", "true or false", "a number",
                                            "a text",  "a color",       "a fieldbus variable"};
    return Common::LocalizationHelper::coreString(QString::fromUtf8(names[int(type)]));
}

} // namespace Halvane::Corvex::Designer
