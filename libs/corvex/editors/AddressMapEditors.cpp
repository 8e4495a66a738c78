// SPDX-License-Identifier: MIT
#include "corvex/editors/AddressMapEditors.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editors/private/TermTable.h"
#include "corvex/variables/ModbusMap.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Registers = ModbusMap::Registers;

const Registers &registersOf(int kind)
{
    return ModbusMap::registers(ModbusMap::RegisterKind(kind));
}

QString addressText(const QString &text)
{
    bool isNumber = false;
    const int address = text.toInt(&isNumber);
    return isNumber ? ModbusMap::addressText(address) : text;
}

template<auto Member>
QString describe(const TermColumn::Terms &, int kind)
{
    return QString::fromUtf16(registersOf(kind).*Member);
}

std::vector<TermColumn> columnsOf(const Registers &registers)
{
    std::vector<TermColumn> columns{
        {.title = "Address",
         .kind = TermColumn::Integer,
         .minimum = registers.first,
         .maximum = registers.last,
         .display = &addressText,
         .counts = true},
        {.title = "Source", .kind = TermColumn::Source},
        {.title = "Type", .kind = TermColumn::Derived, .derive = &describe<&Registers::type>},
    };
    if (*registers.width) {
        columns.push_back(
            {.title = "Bits", .kind = TermColumn::Derived, .derive = &describe<&Registers::width>});
    }
    columns.push_back(
        {.title = "Access", .kind = TermColumn::Derived, .derive = &describe<&Registers::access>});
    return columns;
}

} // namespace

const std::vector<TermColumn> &AddressMapEditor::columns() const
{
    static const QMap<int, std::vector<TermColumn>> tables = [] {
        QMap<int, std::vector<TermColumn>> all;
        for (const Registers &registers : ModbusMap::registers()) {
            all.insert(registers.kind, columnsOf(registers));
        }
        return all;
    }();
    const auto found = tables.constFind(parameter("RegType").toInt());
    return found == tables.cend() ? *tables.constFind(ModbusMap::HoldingRegister) : *found;
}

//! Addresses that are used twice.
QHash<int, QString> AddressMapEditor::conflicts() const
{
    QHash<QString, int> firstRows;
    QHash<int, QString> conflicts;
    const QList<TermColumn::Terms> &entries = table()->entries();
    for (int row = 0; row < int(entries.size()); ++row) {
        const QString address = entries.at(row).value(0).value();
        const auto first = firstRows.constFind(address);
        if (first == firstRows.cend()) {
            firstRows.insert(address, row);
        } else {
            const QString text =
                LocalizationHelper::coreString(u"The address %1 is used twice."_s).arg(addressText(address));
            conflicts.insert(row, text);
            conflicts.insert(*first, text);
        }
    }
    return conflicts;
}

} // namespace Halvane::Corvex::Designer
