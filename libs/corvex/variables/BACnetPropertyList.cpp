// SPDX-License-Identifier: MIT
#include "corvex/variables/BACnetPropertyList.h"

#include "corvex/common/BACnetTables.h"
#include "corvex/common/EnumHelper.h"
#include "corvex/core/properties/ValidationError.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

using Common::EnumHelper;

constexpr qsizetype entrySize = 3;
constexpr int largestProperty = 4194303;

//! Whether the term may occur in a list of properties, even an empty one.
bool isPossible(const GeneralDataInfo &term)
{
    switch (term.valueType()) {
    case GeneralDataInfo::NoValue:
    case GeneralDataInfo::ConstantValue:
    case GeneralDataInfo::ObjectValue:
    case GeneralDataInfo::VariableValue:
        return true;
    case GeneralDataInfo::OperatorValue:
    case GeneralDataInfo::FunctionValue:
    case GeneralDataInfo::CommandValue:
        break;
    }
    return false;
}

bool isText(const GeneralDataInfo &term)
{
    return term.valueType() == GeneralDataInfo::ConstantValue
           && term.dataType() == GeneralDataInfo::StringData;
}

bool isSource(const GeneralDataInfo &term)
{
    return term.valueType() != GeneralDataInfo::NoValue && term.isValid(true);
}

} // namespace

bool BACnetPropertyList::read(const GeneralDataList &terms, QString &error)
{
    m_entries.clear();
    if (terms.isEmpty()) {
        return ValidationError::set(error, "BACnet Object properties not set");
    }
    if (terms.count() % entrySize != 0) {
        return ValidationError::set(error, "Incomplete property list.");
    }
    if (!std::all_of(terms.begin(), terms.end(), &isPossible)) {
        return ValidationError::set(error, "Invalid property list entry.");
    }
    QList<Entry> entries;
    QSet<int> properties;
    for (qsizetype i = 0; i < terms.count(); i += entrySize) {
        const int position = int(i / entrySize) + 1;
        const GeneralDataInfo &name = terms.at(i);
        const GeneralDataInfo &dataType = terms.at(i + 1);
        const GeneralDataInfo &source = terms.at(i + 2);
        if (name.value().isEmpty()) {
            return ValidationError::set(error, "Property name not set at : %1", position);
        }
        const int property = isText(name) ? propertyNumber(name.value()) : -1;
        if (property < 0 || !isText(dataType)
            || !EnumHelper::getBACnetDataTypeNames().contains(dataType.value()) || !isSource(source)) {
            return ValidationError::set(error, "Invalid property list entry at %1", position);
        }
        if (properties.contains(property)) {
            return ValidationError::set(error, "The property name provided at %1 has duplicate entries",
                                        position);
        }
        properties.insert(property);
        entries.append({property, dataType.value(), source});
    }
    m_entries = entries;
    return true;
}

GeneralDataList BACnetPropertyList::toTerms() const
{
    GeneralDataList terms;
    for (const Entry &entry : m_entries) {
        for (const QString &text : {propertyName(entry.property), entry.dataType}) {
            terms.append(GeneralDataInfo::ConstantValue, GeneralDataInfo::StringData, text);
        }
        terms.append(entry.source);
    }
    return terms;
}

QString BACnetPropertyList::propertyName(int property)
{
    return EnumHelper::getBACnetPropIDToNames().value(property, QString::number(property));
}

int BACnetPropertyList::propertyNumber(const QString &name)
{
    static const QHash<QString, int> numbers = [] {
        QHash<QString, int> numberOf;
        for (const auto &[number, property] : Common::BACnetTables::properties()) {
            numberOf.insert(property, number);
        }
        return numberOf;
    }();
    if (const auto known = numbers.constFind(name); known != numbers.cend()) {
        return *known;
    }
    bool isNumber = false;
    const int property = name.toInt(&isNumber);
    const bool isOwnName =
        isNumber && property >= 0 && property <= largestProperty && propertyName(property) == name;
    return isOwnName ? property : -1;
}

} // namespace Halvane::Corvex::Designer
