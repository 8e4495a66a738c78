// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/ModbusExport.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/variables/ModbusMap.h"
#include "corvex/variables/exchange/CsvText.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString typeName(GeneralDataInfo::DataType type)
{
    switch (type) {
    case GeneralDataInfo::BooleanData:
        return u"boolean"_s;
    case GeneralDataInfo::IntegerData:
        return u"integer"_s;
    case GeneralDataInfo::FloatData:
        return u"float"_s;
    case GeneralDataInfo::NumberData:
        return u"number"_s;
    case GeneralDataInfo::StringData:
        return u"string"_s;
    case GeneralDataInfo::ColorData:
        return u"color"_s;
    default:
        return {};
    }
}

} // namespace

Exported ModbusExport::write(const DesignerObject &project)
{
    QString table = CsvText::row({u"map"_s, u"register"_s, u"address"_s, u"wire address"_s, u"access"_s,
                                  u"width"_s, u"type"_s, u"scale"_s, u"source"_s, u"source type"_s});
    Exported exported;
    for (const DesignerObject *variable :
         project.getListItemsInListPropertyOfType(u"variables"_s, u"MappingVariable"_s)) {
        for (const auto &[kind, id, title, access, width, type, base, first, last] : ModbusMap::registers()) {
            ModbusMap map(kind);
            QString error;
            const SharedProperty terms = variable->getProperty(id);
            const GeneralDataList &list = valueAs<GeneralDataListProperty>(terms);
            if (!map.read(list, error)) {
                const QStringList &repeated = map.repeatedAddresses();
                exported.problems.append(
                    u"%1.%2: %3%4"_s.arg(variable->getIdName(), terms->id(), error,
                                         repeated.isEmpty() ? QString() : u": "_s + repeated.join(u", "_s)));
            }
            for (const auto &[address, source] : map.entries()) {
                table += CsvText::row({variable->getIdName(), QString::fromUtf16(title),
                                       ModbusMap::addressText(address), QString::number(address - base),
                                       QString::fromUtf16(access), QString::fromUtf16(width),
                                       QString::fromUtf16(type), *width ? u"1"_s : QString(), source.value(),
                                       typeName(source.dataType())});
            }
        }
    }
    exported.files.append({project.getIdName() + u"_Modbus.csv"_s, table.toUtf8()});
    return exported;
}

} // namespace Halvane::Corvex::Designer
