// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ExpressionRules.h"

#include "corvex/common/TextHelper.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"
#include "corvex/values/text/ObjectPath.h"

#include <algorithm>
#include <array>
#include <limits>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;
using Words = ExpressionVocabulary;

namespace {

//! A set of types, one bit per number.
using TypeSet = quint16;

constexpr TypeSet only(int type)
{
    return TypeSet(1U << type);
}

constexpr TypeSet range(int first, int last)
{
    TypeSet set = 0;
    for (int type = first; type <= last; ++type) {
        set |= only(type);
    }
    return set;
}

constexpr int valueTypeCount = 8;

struct KindRule
{
    //! The value types that terms of this kind can have.
    TypeSet valueTypes;
    //! The data types allowed with each value type.
    std::array<TypeSet, valueTypeCount> dataTypes;
    //! The sets of words of the vocabulary.
    quint8 operators;
    quint8 functions;
};

constexpr TypeSet noData = only(Info::NoData);
constexpr TypeSet words = only(Info::OperatorData);
constexpr TypeSet calls = only(Info::FunctionData);
constexpr TypeSet texts = range(Info::BooleanData, Info::StringData);
constexpr TypeSet plain = range(Info::BooleanData, Info::ColorData);
constexpr TypeSet links = only(Info::ReferenceData);
constexpr TypeSet others = range(Info::LogData, Info::ReferenceData);
constexpr TypeSet variable = only(Info::BooleanData) | range(Info::NumberData, Info::ColorData);
constexpr TypeSet logged =
    only(Info::BooleanData) | range(Info::NumberData, Info::StringData) | only(Info::LogData);
constexpr TypeSet hexes = only(Info::HexData);
constexpr TypeSet command = only(Info::CommandData);
constexpr quint8 anyOperator = Words::MathOperators | Words::BooleanOperators;
constexpr quint8 anyFunction = Words::MathFunctions | Words::StringFunctions;

// clang-format off
constexpr std::array<KindRule, 6> kindRules{{
    // value types               empty   operator constant         element                  variable           function        6  command
    /* General */
    {range(0, 5) | only(7),    {{noData, words,   plain | hexes,   noData | plain | others, noData | variable, calls,          0, 0}}, anyOperator, anyFunction},
    /* Assign */
    {only(0) | range(2, 4),    {{noData, 0,       plain | links,   noData | plain | links,  noData | variable, 0,              0, 0}}, 0, 0},
    /* Bool */
    {range(0, 4),              {{noData, words,   plain,           noData | plain,          noData | variable, 0,              0, 0}}, Words::BooleanOperators, 0},
    /* Math */
    {range(0, 5),              {{noData, words,   noData | texts,  noData | texts,          noData | logged,   noData | calls, 0, 0}}, anyOperator, Words::MathFunctions},
    /* String */
    {range(0, 5),              {{noData, words,   noData | texts,  noData | texts,          noData | logged,   noData | calls, 0, 0}}, anyOperator, Words::StringFunctions},
    /* ModbusCommand */
    {only(0) | only(7),        {{noData, 0,       0,               0,                       0,                 0,              0, noData | command}}, 0, 0},
}};
// clang-format on

const KindRule &ruleOf(ExpressionRules::Kind kind)
{
    return kindRules[size_t(kind)];
}

bool isInteger(QStringView text)
{
    const QStringView digits = text.startsWith(u'-') ? text.sliced(1) : text;
    const bool simple =
        std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    bool fits = false;
    [[maybe_unused]] const qlonglong number = text.toLongLong(&fits);
    return simple && fits;
}

bool isNumber(QStringView text)
{
    if (text == "NaN"_L1 || text == "Infinity"_L1 || text == "-Infinity"_L1) {
        return true;
    }
    // The conversion alone would accept surrounding blanks, "inf" and "nan".
    const bool simple = std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'+' || c == u'e' || c == u'E';
    });
    bool fits = false;
    [[maybe_unused]] const double number = text.toDouble(&fits);
    return simple && fits;
}

//! Constant references appear in code unchanged, without the prefix that allows paths any first character.
bool isReference(QStringView path)
{
    const QStringView first = ObjectPath::firstSegment(path);
    return ObjectPath::isValid(path) && !first[0].isDigit()
           && (path == "null"_L1 || !Common::TextHelper::isReservedWord(first.toString()));
}

} // namespace

bool ExpressionRules::isHexadecimal(QStringView digits)
{
    return std::all_of(digits.begin(), digits.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    });
}

double ExpressionRules::toNumber(const QString &value)
{
    if (value == "NaN"_L1) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (value.endsWith("Infinity"_L1)) {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        return value.startsWith(u'-') ? -infinity : infinity;
    }
    return value.toDouble();
}

bool ExpressionRules::isConstant(Info::DataType type, const QString &value)
{
    switch (type) {
    case Info::NoData:
        return value.isEmpty();
    case Info::BooleanData:
        return value == "true"_L1 || value == "false"_L1;
    case Info::IntegerData:
        return isInteger(value);
    case Info::FloatData:
    case Info::NumberData:
        return isNumber(value);
    case Info::StringData:
        return true;
    case Info::ColorData:
        return value.size() == 9 && value.startsWith(u'#') && isHexadecimal(QStringView(value).sliced(1));
    case Info::HexData:
        return !value.isEmpty() && isHexadecimal(value);
    case Info::ReferenceData:
        return isReference(value);
    case Info::CommandData:
        return !value.isEmpty() && value.size() % 2 == 0 && isHexadecimal(value);
    case Info::OperatorData:
    case Info::FunctionData:
    case Info::LogData:
    case Info::DeviceData:
        break;
    }
    return false;
}

bool ExpressionRules::allowsValueType(Kind kind, const Info &term)
{
    return term.valueType() < valueTypeCount && (ruleOf(kind).valueTypes & only(term.valueType())) != 0;
}

bool ExpressionRules::allowsDataType(Kind kind, const Info &term)
{
    return term.valueType() < valueTypeCount && term.dataType() <= Info::CommandData
           && (ruleOf(kind).dataTypes[term.valueType()] & only(term.dataType())) != 0;
}

bool ExpressionRules::allowsValue(Kind kind, const Info &term)
{
    const KindRule &rule = ruleOf(kind);
    const QString &value = term.value();
    switch (term.valueType()) {
    case Info::NoValue:
        return value.isEmpty();
    case Info::OperatorValue:
        return (Words::setsOf(value) & rule.operators) != 0;
    case Info::FunctionValue:
        return (Words::setsOf(value) & rule.functions) != 0;
    case Info::ConstantValue:
        if (kind == Kind::Math && term.dataType() == Info::FloatData
            && (Words::setsOf(value) & Words::MathValues)) {
            return true;
        }
        return isConstant(term.dataType(), value);
    case Info::CommandValue:
        return isConstant(term.dataType(), value);
    case Info::ObjectValue:
        return ObjectPath::isValid(value);
    case Info::VariableValue:
        // In the text form of an expression "><" separates terms.
        return !value.isEmpty() && !value.contains("><"_L1);
    }
    return false;
}

bool ExpressionRules::allowsUntyped(Kind kind, const Info &term)
{
    return allowsValueType(kind, term) && allowsDataType(kind, term) && allowsValue(kind, term);
}

bool ExpressionRules::allows(Kind kind, const Info &term)
{
    return term.valueType() != Info::NoValue && term.dataType() != Info::NoData && allowsUntyped(kind, term);
}

} // namespace Halvane::Corvex::Designer
