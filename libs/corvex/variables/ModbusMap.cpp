// SPDX-License-Identifier: MIT
#include "corvex/variables/ModbusMap.h"

#include "corvex/core/properties/ValidationError.h"

#include <QMap>
#include <QSet>

#include <limits>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

struct AddressRange
{
    int first;
    int last;
};

constexpr AddressRange rangeOf(ModbusMap::RegisterKind kind)
{
    constexpr int open = std::numeric_limits<int>::max();
    switch (kind) {
    case ModbusMap::Coil:
        return {1, 9999};
    case ModbusMap::DiscreteInput:
        return {10001, 19999};
    case ModbusMap::InputRegister:
        return {30001, 39999};
    case ModbusMap::HoldingRegister:
        return {40001, 49999};
    case ModbusMap::VirtualRegister:
        return {0, open};
    case ModbusMap::VirtualString:
        return {5000, open};
    }
    return {0, open};
}

bool readAddress(const GeneralDataInfo &term, AddressRange range, int &address)
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

//! Five digits, the usual form of an address.
QString addressText(int address)
{
    return QString::number(address).rightJustified(5, u'0');
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
            repeated.append(addressText(address));
        }
    }
    return repeated;
}

} // namespace

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
        if (!readAddress(terms.at(i), rangeOf(m_kind), address)) {
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
