// SPDX-License-Identifier: MIT
#include "corvex/values/private/ExpressionWords.h"

#include "corvex/values/expressions/ExpressionVocabulary.h"
#include "corvex/values/private/ExpressionLexer.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Info = GeneralDataInfo;
using Vocabulary = ExpressionVocabulary;

//! The printer uses the first word for a term.
constexpr ExpressionWords::Word keywords[] = {
    {"and"_L1, Info::OperatorValue, Info::OperatorData, "&&"_L1},
    {"or"_L1, Info::OperatorValue, Info::OperatorData, "||"_L1},
    {"xor"_L1, Info::OperatorValue, Info::OperatorData, "^"_L1},
    {"true"_L1, Info::ConstantValue, Info::BooleanData, "true"_L1},
    {"false"_L1, Info::ConstantValue, Info::BooleanData, "false"_L1},
    {"NaN"_L1, Info::ConstantValue, Info::FloatData, "NaN"_L1},
    {"Infinity"_L1, Info::ConstantValue, Info::FloatData, "Infinity"_L1},
};
struct TypeName
{
    QLatin1StringView text;
    Info::DataType type;
};

//! After "::", behind a name.
constexpr TypeName typeNames[] = {
    {"none"_L1, Info::NoData},         {"boolean"_L1, Info::BooleanData},
    {"integer"_L1, Info::IntegerData}, {"float"_L1, Info::FloatData},
    {"number"_L1, Info::NumberData},   {"string"_L1, Info::StringData},
    {"color"_L1, Info::ColorData},     {"log"_L1, Info::LogData},
    {"device"_L1, Info::DeviceData},   {"reference"_L1, Info::ReferenceData},
};

} // namespace

const ExpressionWords::Word *ExpressionWords::find(const QString &text)
{
    const auto *word = std::ranges::find(keywords, text, &Word::text);
    return word == std::end(keywords) ? nullptr : word;
}

const ExpressionWords::Word *ExpressionWords::ofOperator(const QString &sign)
{
    const auto *word = std::ranges::find_if(keywords, [&sign](const Word &row) {
        return row.valueType == Info::OperatorValue && row.value == sign;
    });
    return word == std::end(keywords) ? nullptr : word;
}

std::optional<Info::DataType> ExpressionWords::typeNamed(const QString &text)
{
    const auto *type = std::ranges::find(typeNames, text, &TypeName::text);
    return type == std::end(typeNames) ? std::nullopt : std::optional(type->type);
}

QLatin1StringView ExpressionWords::nameOf(Info::DataType type)
{
    const auto *row = std::ranges::find(typeNames, type, &TypeName::type);
    return row == std::end(typeNames) ? QLatin1StringView() : row->text;
}

bool ExpressionWords::isMathValue(const QString &text)
{
    return (Vocabulary::setsOf(text) & Vocabulary::MathValues) != 0;
}

bool ExpressionWords::isFunction(const QString &text)
{
    return (Vocabulary::setsOf(text) & (Vocabulary::MathFunctions | Vocabulary::StringFunctions)) != 0;
}

bool ExpressionWords::isWholeCall(const QString &function)
{
    return (Vocabulary::setsOf(function) & Vocabulary::CompleteFunctions) != 0;
}

Info ExpressionWords::inContext(Info name, const Info &previous)
{
    const bool isArgument = previous.valueType() == Info::FunctionValue
                            && (Vocabulary::setsOf(previous.value()) & Vocabulary::DeviceFunctions) != 0;
    if (name.dataType() == Info::LogData && !isArgument) {
        name.setDataType(Info::NumberData);
    }
    return name;
}

bool ExpressionWords::needsQuotes(const QString &path)
{
    return !ExpressionLexer::isPlainName(path) || find(path) || isMathValue(path) || path == negation
           || path == ruleBegin || path == ruleEffect;
}

QLatin1StringView ExpressionWords::separator(const ExpressionPurpose &purpose, bool isSource)
{
    return purpose.isTermList ? ","_L1 : isSource ? ";"_L1 : "="_L1;
}

} // namespace Halvane::Corvex::Designer
