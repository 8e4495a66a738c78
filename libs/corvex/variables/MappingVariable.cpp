// SPDX-License-Identifier: MIT
#include "corvex/variables/MappingVariable.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/variables/ModbusMap.h"

namespace Halvane::Corvex::Designer {

namespace {

template<ModbusMap::RegisterKind kind>
bool validateMap(const DesignerProperty *property, QString &error)
{
    return ModbusMap(kind).read(valueAs<GeneralDataListProperty>(property), error);
}

template<ModbusMap::RegisterKind kind>
PropertyRow mapRow(const char *id, const char *title)
{
    return row<GeneralDataListProperty>(id, title, GeneralDataList())
        .allowInvalid()
        .editor(kind == ModbusMap::VirtualString ? "StringAddressMapEditor" : "AddressMapEditor")
        .parameter("RegType", int(kind))
        .validator(&validateMap<kind>);
}

} // namespace

QString MappingVariable::toQml(int) const
{
    return {};
}

bool MappingVariable::initializeProperties()
{
    static const PropertyTable table{
        mapRow<ModbusMap::Coil>("coilMap", "Coil Map (00001 - 09999)")
            .description("The coils that a Modbus master can read and write: each address with the variable "
                         "or property behind it.")
            .example("1, alarm, 2, Main.lamp.visible")
            .rank(12),
        mapRow<ModbusMap::DiscreteInput>("discreteInputMap", "Discrete Input Map (10001 - 19999)")
            .description("The discrete inputs that a Modbus master can read: each address with the variable "
                         "or property behind it.")
            .example("10001, alarm")
            .rank(13),
        mapRow<ModbusMap::InputRegister>("inputRegMap", "Input Regiseter Map (30001 - 39999)")
            .description("The input registers that a Modbus master can read: each address with the variable "
                         "or property behind it.")
            .example("30001, level, 30002, limit")
            .rank(14),
        mapRow<ModbusMap::HoldingRegister>("holdingRegMap", "Holding Register Map (40001 - 49999)")
            .description("The holding registers that a Modbus master can read and write: each address with "
                         "the variable or property behind it.")
            .example("40001, limit")
            .rank(15),
        mapRow<ModbusMap::VirtualRegister>("virtualRegMap", "Virtual Register Map")
            .description("Registers outside of the four Modbus tables: each address with the variable or "
                         "property behind it.")
            .example("50001, level")
            .rank(16),
        mapRow<ModbusMap::VirtualString>("virtualStringMap", "Virtual String Map (5000 and above)")
            .description("Texts that a Modbus master can read and write: each address with the variable or "
                         "property behind it.")
            .example("5000, message")
            .rank(17),
    };
    if (!DeviceVariable::initializeProperties() || !addProperties(table)) {
        return false;
    }
    m_coilMap = getProperty(u"coilMap");
    m_discreteInputMap = getProperty(u"discreteInputMap");
    m_inputRegMap = getProperty(u"inputRegMap");
    m_holdingRegMap = getProperty(u"holdingRegMap");
    m_virtualRegMap = getProperty(u"virtualRegMap");
    m_virtualStringMap = getProperty(u"virtualStringMap");
    return true;
}

} // namespace Halvane::Corvex::Designer
