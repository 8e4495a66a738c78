// SPDX-License-Identifier: MIT
#include "ExpressionReader.h"

#include "corvex/values/expressions/MathInfo.h"
#include "corvex/values/records/BoolInfo.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Examples {

namespace {

using Info = GeneralDataInfo;

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool belongsToName(QChar c)
{
    return isDigit(c) || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' || c == u'.';
}

template<class Predicate>
qsizetype countWhile(QStringView text, Predicate belongs)
{
    return std::find_if_not(text.begin(), text.end(), belongs) - text.begin();
}

//! All operators, longer ones before their own prefixes.
const QStringList &operators()
{
    static const QStringList sorted = [] {
        QStringList all = MathInfo::mathOperators() + BoolInfo::booleanOperators();
        std::stable_sort(all.begin(), all.end(),
                         [](const QString &a, const QString &b) { return a.size() > b.size(); });
        return all;
    }();
    return sorted;
}

bool hasNext(QStringView text, QChar wanted)
{
    return text.trimmed().startsWith(wanted);
}

} // namespace

GeneralDataList ExpressionReader::read(QStringView text)
{
    GeneralDataList terms;
    m_afterOperand = false;
    for (m_rest = text.trimmed(); !m_rest.isEmpty(); m_rest = m_rest.trimmed()) {
        const Info term = readTerm();
        if (term.valueType() != Info::NoValue) {
            terms.append(term);
        }
        m_afterOperand = term.valueType() == Info::ConstantValue || term.valueType() == Info::ObjectValue
                         || term.valueType() == Info::VariableValue || term.value() == ")"_L1;
    }
    return terms;
}

Info ExpressionReader::readTerm()
{
    if (m_rest.front() == u'\'') {
        take(1);
        const qsizetype end = m_rest.indexOf(u'\'');
        const QString value = take(end < 0 ? m_rest.size() : end).toString();
        take(std::min<qsizetype>(1, m_rest.size()));
        return {Info::ConstantValue, Info::StringData, value};
    }
    if (m_rest.front() == u'#') {
        return {Info::ConstantValue, Info::ColorData, take(std::min<qsizetype>(9, m_rest.size())).toString()};
    }
    if (startsNumber()) {
        return readNumber();
    }
    return belongsToName(m_rest.front()) ? readName() : readOperator();
}

bool ExpressionReader::startsNumber() const
{
    return isDigit(m_rest.front())
           || (m_rest.front() == u'-' && !m_afterOperand && m_rest.size() > 1 && isDigit(m_rest[1]));
}

Info ExpressionReader::readNumber()
{
    const qsizetype sign = m_rest.front() == u'-' ? 1 : 0;
    const QString digits =
        take(sign + countWhile(m_rest.sliced(sign), [](QChar c) { return isDigit(c) || c == u'.'; }))
            .toString();
    return {Info::ConstantValue, digits.contains(u'.') ? Info::FloatData : Info::IntegerData, digits};
}

Info ExpressionReader::readName()
{
    const QString name = take(countWhile(m_rest, belongsToName)).toString();
    if (hasNext(m_rest, u'(')) {
        // The term includes the parenthesis, or both parentheses of a function without arguments.
        take(m_rest.indexOf(u'(') + 1);
        if (hasNext(m_rest, u')') && name == "random"_L1) {
            take(m_rest.indexOf(u')') + 1);
        }
        return {Info::FunctionValue, Info::FunctionData, name};
    }
    if (name == "true"_L1 || name == "false"_L1) {
        return {Info::ConstantValue, Info::BooleanData, name};
    }
    if (name.contains(u'.')) {
        return {Info::ObjectValue, propertyType(name), name};
    }
    if (MathInfo::mathValues().contains(name)) {
        return {Info::ConstantValue, Info::FloatData, name};
    }
    const auto type = m_types.constFind(name);
    if (type == m_types.constEnd()) {
        m_problems.append(u"There is no variable \"%1\"."_s.arg(name));
        return {};
    }
    // A log accepts numbers; only the functions that read logs treat it as a log.
    const bool isTarget = hasNext(m_rest, u'=') && !m_rest.trimmed().startsWith("=="_L1);
    return {Info::VariableValue, *type == Info::LogData && isTarget ? Info::NumberData : *type, name};
}

Info ExpressionReader::readOperator()
{
    const auto found = std::find_if(operators().begin(), operators().end(),
                                    [this](const QString &name) { return m_rest.startsWith(name); });
    if (found != operators().end()) {
        take(found->size());
        return {Info::OperatorValue, Info::OperatorData, *found};
    }
    const QStringView other = take(1);
    if (other != u"=" && other != u";") {
        m_problems.append(u"\"%1\" is not an operator."_s.arg(other));
    }
    return {};
}

QStringView ExpressionReader::take(qsizetype count)
{
    const QStringView taken = m_rest.first(count);
    m_rest = m_rest.sliced(count);
    return taken;
}

ExpressionReader::DataType ExpressionReader::propertyType(const QString &path) const
{
    static const QHash<QStringView, DataType> types{
        {u"text", Info::StringData},     {u"source", Info::StringData},  {u"color", Info::ColorData},
        {u"visible", Info::BooleanData}, {u"radius", Info::IntegerData}, {u"z", Info::IntegerData},
    };
    const QStringView property = QStringView(path).sliced(path.lastIndexOf(u'.') + 1);
    return m_types.value(path, types.value(property, Info::NumberData));
}

} // namespace Halvane::Corvex::Examples
