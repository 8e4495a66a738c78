// SPDX-License-Identifier: MIT
#include "corvex/variables/CanParameterMap.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/properties/ValidationError.h"
#include "corvex/values/expressions/ExpressionRules.h"

#include <QLocale>
#include <QSet>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

constexpr qsizetype headSize = 3;
constexpr qsizetype entrySize = 9;
constexpr int dataBits = 64;

bool isEmptyTerm(const GeneralDataInfo &term)
{
    return term.valueType() == GeneralDataInfo::NoValue
           || (term.value().isEmpty() && term.dataType() != GeneralDataInfo::StringData);
}

bool isConstant(const GeneralDataInfo &term, GeneralDataInfo::DataType type)
{
    return term.valueType() == GeneralDataInfo::ConstantValue && term.dataType() == type;
}

//! Reads terms one by one, and records the problem of the first one that does not fit.
class TermReader
{
public:
    TermReader(const GeneralDataList &terms, QString &error)
        : m_terms(terms)
        , m_error(error)
    { }

    bool atEnd() const { return m_next == m_terms.count(); }
    //! The number of the current entry, counted from 1; 0 in the head.
    qsizetype entry() const { return (m_next - headSize + entrySize - 1) / entrySize; }

    bool readInteger(const char *name, int minimum, int maximum, int &value)
    {
        const GeneralDataInfo &term = m_terms.at(m_next++);
        bool isNumber = false;
        value = term.value().toInt(&isNumber);
        return (isNumber && isConstant(term, GeneralDataInfo::IntegerData) && value >= minimum
                && value <= maximum)
               || fail(u"%1 must be a whole number from %2 to %3."_s, name, minimum, maximum);
    }

    bool readNumber(const char *name, double &value)
    {
        const GeneralDataInfo &term = m_terms.at(m_next++);
        value = ExpressionRules::toNumber(term.value());
        const bool isNumber = isConstant(term, GeneralDataInfo::IntegerData)
                              || isConstant(term, GeneralDataInfo::FloatData)
                              || isConstant(term, GeneralDataInfo::NumberData);
        return (isNumber && ExpressionRules::isConstant(term.dataType(), term.value())
                && std::isfinite(value))
               || fail(u"%1 must be a number."_s, name);
    }

    bool readText(const char *name, QString &text)
    {
        const GeneralDataInfo &term = m_terms.at(m_next++);
        text = term.value();
        return isConstant(term, GeneralDataInfo::StringData) || fail(u"%1 must be a text."_s, name);
    }

    bool readParameter(CanParameter &parameter)
    {
        return readInteger("The SPN", 0, 524287, parameter.spn) && readText("The unit", parameter.units)
               && readInteger("The byte", 1, 8, parameter.byte) && readInteger("The bit", 1, 8, parameter.bit)
               && readInteger("The length", 1, dataBits, parameter.length)
               && readNumber("The offset", parameter.offset) && readNumber("The minimum", parameter.minimum)
               && readNumber("The maximum", parameter.maximum)
               && readNumber("The scaling", parameter.scaling);
    }

private:
    template<class... Limits>
    bool fail(const QString &sentence, const char *name, Limits... limits)
    {
        m_error = LocalizationHelper::coreString(sentence).arg(
            LocalizationHelper::coreString(QString::fromLatin1(name)), QString::number(limits)...);
        if (entry() > 0) {
            m_error =
                LocalizationHelper::coreString(u"Entry %1: %2"_s).arg(QString::number(entry()), m_error);
        }
        return false;
    }

    const GeneralDataList &m_terms;
    QString &m_error;
    qsizetype m_next = 0;
};

//! Checks a parameter together with the previous ones.
class ParameterCheck
{
public:
    //! The problem of the next parameter; null if the parameter is valid.
    const char *problemOf(const CanParameter &parameter)
    {
        if (m_numbers.contains(parameter.spn)) {
            return "Entry %1: The SPN is listed twice.";
        }
        if (parameter.minimum > parameter.maximum) {
            return "Entry %1: The minimum is greater than the maximum.";
        }
        if (parameter.scaling == 0) {
            return "Entry %1: The scaling must not be 0.";
        }
        const int start = (parameter.byte - 1) * 8 + parameter.bit - 1;
        if (start + parameter.length > dataBits) {
            return "Entry %1: The bits reach beyond the eight bytes of the message.";
        }
        const quint64 bits = (~quint64(0) >> (dataBits - parameter.length)) << start;
        if (m_bits & bits) {
            return "Entry %1: The bits overlap those of another entry.";
        }
        m_numbers.insert(parameter.spn);
        m_bits |= bits;
        return nullptr;
    }

private:
    QSet<int> m_numbers;
    quint64 m_bits = 0;
};

void appendNumber(GeneralDataList &terms, double number)
{
    terms.append(GeneralDataInfo::ConstantValue, GeneralDataInfo::FloatData,
                 QString::number(number, 'g', QLocale::FloatingPointShortest));
}

void appendInteger(GeneralDataList &terms, int number)
{
    terms.append(GeneralDataInfo::ConstantValue, GeneralDataInfo::IntegerData, QString::number(number));
}

} // namespace

bool CanParameterMap::read(const GeneralDataList &terms, QString &error)
{
    *this = CanParameterMap();
    if (terms.count() <= headSize) {
        return ValidationError::set(error, "At least one SPN required");
    }
    if ((terms.count() - headSize) % entrySize != 0
        || std::any_of(terms.begin(), terms.end(), &isEmptyTerm)) {
        return ValidationError::set(error, "Empty entry");
    }
    TermReader reader(terms, error);
    CanParameterMap map;
    if (!reader.readInteger("The PGN", 0, 0x3FFFF, map.m_pgn)
        || !reader.readInteger("The priority", 0, 7, map.m_priority)
        || !reader.readInteger("The source address", 0, 253, map.m_sourceAddress)) {
        return false;
    }
    ParameterCheck check;
    while (!reader.atEnd()) {
        CanParameter parameter;
        if (!reader.readParameter(parameter)) {
            return false;
        }
        if (const char *problem = check.problemOf(parameter)) {
            return ValidationError::set(error, problem, int(reader.entry()));
        }
        map.m_parameters.append(parameter);
    }
    *this = map;
    return true;
}

GeneralDataList CanParameterMap::toTerms() const
{
    GeneralDataList terms;
    for (const int number : {m_pgn, m_priority, m_sourceAddress}) {
        appendInteger(terms, number);
    }
    for (const CanParameter &parameter : m_parameters) {
        appendInteger(terms, parameter.spn);
        terms.append(GeneralDataInfo::ConstantValue, GeneralDataInfo::StringData, parameter.units);
        for (const int number : {parameter.byte, parameter.bit, parameter.length}) {
            appendInteger(terms, number);
        }
        for (const double number :
             {parameter.offset, parameter.minimum, parameter.maximum, parameter.scaling}) {
            appendNumber(terms, number);
        }
    }
    return terms;
}

quint32 CanParameterMap::identifier() const
{
    return quint32(m_priority) << 26 | quint32(m_pgn) << 8 | quint32(m_sourceAddress);
}

} // namespace Halvane::Corvex::Designer
