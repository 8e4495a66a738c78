// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/ModbusCheck.h"

#include "corvex/checks/private/rules/ValueType.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/project/Project.h"
#include "corvex/variables/ModbusMap.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Registers can hold a boolean as 0 or 1; a coil is a single bit.
bool carries(ModbusMap::RegisterKind kind, ValueType type)
{
    switch (kind) {
    case ModbusMap::Coil:
    case ModbusMap::DiscreteInput:
        return type == ValueType::Boolean || type == ValueType::Unknown;
    case ModbusMap::VirtualString:
        return type != ValueType::Fieldbus;
    default:
        return type == ValueType::Boolean || type == ValueType::Number || type == ValueType::Unknown;
    }
}

} // namespace

bool ModbusCheck::concerns(const DesignerProperty &property)
{
    return property.parentObject()->isKindOfClass(u"MappingVariable"_s)
           && property.editorParameters().contains(u"RegType"_s);
}

void ModbusCheck::look(const DesignerProperty &map)
{
    const Project *project = map.parentObject()->project();
    const auto kind = ModbusMap::RegisterKind(map.editorParameter(u"RegType"_s).toInt());
    ModbusMap registers(kind);
    QString error;
    if (!project || !registers.read(valueAs<GeneralDataListProperty>(&map), error)) {
        return;
    }
    const bool isBit = kind == ModbusMap::Coil || kind == ModbusMap::DiscreteInput;
    const QString held = valueTypeName(isBit                              ? ValueType::Boolean
                                       : kind == ModbusMap::VirtualString ? ValueType::Text
                                                                          : ValueType::Number);
    for (const auto &[address, source] : registers.entries()) {
        const ValueType type = valueTypeOf(source, *project);
        if (!carries(kind, type)) {
            report(map, ProblemCode::ModbusType,
                   {QString::number(address).rightJustified(5, u'0'), held, source.value(),
                    valueTypeName(type)});
        }
    }
}

} // namespace Halvane::Corvex::Designer
