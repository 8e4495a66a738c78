// SPDX-License-Identifier: MIT
#include "corvex/variables/ModbusMap.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/ValidationError.h"

#include <QMap>
#include <QSet>

#include <limits>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr int open = std::numeric_limits<int>::max();

constexpr std::array<ModbusMap::Registers, 6> kinds{{
    {ModbusMap::Coil, u"coilMap", u"coil", u"read/write", u"1", u"bit", 1, 1, 9999},
    {ModbusMap::DiscreteInput, u"discreteInputMap", u"discrete input", u"read", u"1", u"bit", 10001, 10001,
     19999},
    {ModbusMap::InputRegister, u"inputRegMap", u"input register", u"read", u"16", u"int16", 30001, 30001,
     39999},
    {ModbusMap::HoldingRegister, u"holdingRegMap", u"holding register", u"read/write", u"16", u"int16", 40001,
     40001, 49999},
    {ModbusMap::VirtualRegister, u"virtualRegMap", u"virtual register", u"read/write", u"", u"number", 0, 0,
     open},
    {ModbusMap::VirtualString, u"virtualStringMap", u"virtual string", u"read/write", u"", u"string", 0, 5000,
     open},
}};

bool readAddress(const GeneralDataInfo &term, const ModbusMap::Registers &range, int &address)
{
    bool isNumber = false;
    address = term.value().toInt(&isNumber);
    return isNumber && term.valueType() == GeneralDataInfo::ConstantValue
           && term.dataType() == GeneralDataInfo::IntegerData && address >= range.first
           && address <= range.last;
}

bool isSource(const GeneralDataInfo &term)
{
    return !term.value().isEmpty()
           && (term.valueType() == GeneralDataInfo::VariableValue
               || term.valueType() == GeneralDataInfo::ObjectValue);
}

QStringList repeatedIn(const GeneralDataList &terms)
{
    QMap<int, int> counts;
    for (qsizetype i = 0; i < terms.count(); i += 2) {
        bool isNumber = false;
        const int address = terms.at(i).value().toInt(&isNumber);
        counts[address] += isNumber ? 1 : 0;
    }
    QStringList repeated;
    for (const auto &[address, count] : counts.asKeyValueRange()) {
        if (count > 1) {
            repeated.append(ModbusMap::addressText(address));
        }
    }
    return repeated;
}

} // namespace

const std::array<ModbusMap::Registers, 6> &ModbusMap::registers()
{
    return kinds;
}

const ModbusMap::Registers &ModbusMap::registers(RegisterKind kind)
{
    return *std::ranges::find(kinds, kind, &Registers::kind);
}

QString ModbusMap::addressText(int address)
{
    return QString::number(address).rightJustified(5, u'0');
}

bool ModbusMap::read(const GeneralDataList &terms, QString &error)
{
    m_entries.clear();
    m_repeated.clear();
    if (terms.count() % 2 != 0) {
        return ValidationError::set(error, m_kind == VirtualString ? "incompeletd data" : "Incomplete data");
    }
    QList<Entry> entries;
    QSet<int> addresses;
    for (qsizetype i = 0; i < terms.count(); i += 2) {
        const GeneralDataInfo &source = terms.at(i + 1);
        int address = 0;
        if (!readAddress(terms.at(i), registers(m_kind), address)) {
            const QString text = terms.at(i).value();
            return ValidationError::set(error, "Data value at %1 is undefined",
                                        text.isEmpty() ? QString::number(i / 2 + 1) : text);
        }
        if (!isSource(source)) {
            return ValidationError::set(error, "Element not set for data value at: %1", addressText(address));
        }
        if (addresses.contains(address)) {
            m_repeated = repeatedIn(terms);
            return ValidationError::set(error, "Duplicate Value is Not Allowed");
        }
        addresses.insert(address);
        entries.append({address, source});
    }
    m_entries = entries;
    return true;
}

QString ModbusMap::detail(const GeneralDataList &terms)
{
    using Common::LocalizationHelper;
    QString error;
    if (read(terms, error)) {
        return {};
    }
    if (!m_repeated.isEmpty()) {
        return u": "_s + m_repeated.join(u", "_s);
    }
    const Registers &range = registers(m_kind);
    for (qsizetype i = 0; i < terms.count(); i += 2) {
        int address = 0;
        if (!readAddress(terms.at(i), range, address)) {
            return range.last == open
                       ? LocalizationHelper::coreString(u": addresses begin at %1"_s).arg(range.first)
                       : LocalizationHelper::coreString(u": addresses go from %1 to %2"_s)
                             .arg(addressText(range.first), addressText(range.last));
        }
        if (terms.count() % 2 != 0 && (i + 1 == terms.count() || !isSource(terms.at(i + 1)))) {
            return LocalizationHelper::coreString(u": %1 has no variable"_s).arg(addressText(address));
        }
    }
    return {};
}

GeneralDataList ModbusMap::toTerms() const
{
    GeneralDataList terms;
    for (const Entry &entry : m_entries) {
        terms.append(GeneralDataInfo::ConstantValue, GeneralDataInfo::IntegerData,
                     QString::number(entry.address));
        terms.append(entry.source);
    }
    return terms;
}

} // namespace Halvane::Corvex::Designer
