// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ExpressionCode.h"

#include "corvex/common/TextHelper.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"
#include "corvex/values/text/ObjectPath.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>
#include <array>
#include <span>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;
using Words = ExpressionVocabulary;

namespace {

//! What replaces %1 in a template.
enum class Argument : quint32 {
    Value,       //!< The value unchanged.
    Quoted,      //!< The value, escaped for double quotes.
    Variable,    //!< The call that reads the variable with that name.
    Numeral,     //!< The number without leading zeros, which would make it octal.
    Rounded,     //!< The number rounded to an integer, halves upwards.
    ZeroOrOne,   //!< 1 for "true".
    NumberTruth, //!< false for zero and NaN.
    TextTruth,   //!< false for "false" in either case.
    DigitsTruth, //!< false for "0".
};

//! The widths avoid padding between the members.
struct Row
{
    quint16 outputs; //!< One bit for each output type.
    Info::ValueType valueType;
    quint32 dataTypes; //!< One bit for each data type.
    const char *text;
    Argument argument = Argument::Value;
    quint32 words = 0; //!< If set, the value must belong to one of these sets of the vocabulary.
};

constexpr quint16 toRaw = 1U << Info::RawOutput;
constexpr quint16 toString = 1U << Info::StringOutput;
constexpr quint16 toBoolean = 1U << Info::BooleanOutput;
constexpr quint16 toInteger = 1U << Info::IntegerOutput;
constexpr quint16 toNumber = 1U << Info::FloatOutput | 1U << Info::NumberOutput;
constexpr quint16 toColor = 1U << Info::ColorOutput;
constexpr quint16 toCode = 0xff & ~(1U << Info::NoOutput);
constexpr quint16 toAny = 0xff;

constexpr quint32 bools = 1U << Info::BooleanData;
constexpr quint32 integers = 1U << Info::IntegerData;
constexpr quint32 floats = 1U << Info::FloatData | 1U << Info::NumberData;
constexpr quint32 numbers = integers | floats;
constexpr quint32 variableNumbers = 1U << Info::NumberData;
constexpr quint32 strings = 1U << Info::StringData;
constexpr quint32 colors = 1U << Info::ColorData;
constexpr quint32 hexes = 1U << Info::HexData;
constexpr quint32 logs = 1U << Info::LogData;
constexpr quint32 anyData = 0xffff;

// The first matching row is used.
// clang-format off
constexpr auto generalRows = std::to_array<Row>({
    {toRaw,     Info::ConstantValue, strings | colors, R"("%1")", Argument::Quoted},
    {toRaw,     Info::ObjectValue,   anyData,          "qml_%1"},
    {toRaw,     Info::VariableValue, anyData,          "%1", Argument::Variable},

    {toString,  Info::ConstantValue, anyData,          R"("%1")", Argument::Quoted},
    {toString,  Info::ObjectValue,   bools,            R"((qml_%1?"true":"false"))"},
    {toString,  Info::ObjectValue,   numbers,          "String(qml_%1)"},
    {toString,  Info::ObjectValue,   strings,          "qml_%1"},
    {toString,  Info::VariableValue, anyData,          "qmlViewer.getVariableValueString(\"%1\")", Argument::Quoted},

    {toBoolean, Info::ConstantValue, numbers,          "%1", Argument::NumberTruth},
    {toBoolean, Info::ConstantValue, strings,          "%1", Argument::TextTruth},
    {toBoolean, Info::ConstantValue, hexes,            "%1", Argument::DigitsTruth},
    {toBoolean, Info::ObjectValue,   bools,            "qml_%1"},
    {toBoolean, Info::ObjectValue,   anyData,          "Boolean(qml_%1)"},
    {toBoolean, Info::VariableValue, bools,            "%1", Argument::Variable},
    {toBoolean, Info::VariableValue, anyData,          "Boolean(%1)", Argument::Variable},

    {toInteger, Info::ConstantValue, bools,            "%1", Argument::ZeroOrOne},
    {toInteger, Info::ConstantValue, floats,           "%1", Argument::Rounded},
    {toInteger, Info::ConstantValue, strings,          "parseInt(\"%1\")", Argument::Quoted},
    {toInteger, Info::ObjectValue,   bools,            "(qml_%1?1:0)"},
    {toInteger, Info::ObjectValue,   integers,         "qml_%1"},
    {toInteger, Info::ObjectValue,   floats,           "Math.round(qml_%1)"},
    {toInteger, Info::ObjectValue,   strings,          "parseInt(qml_%1)"},
    {toInteger, Info::VariableValue, bools,            "(%1?1:0)", Argument::Variable},
    {toInteger, Info::VariableValue, variableNumbers,  "Math.round(%1)", Argument::Variable},
    {toInteger, Info::VariableValue, strings,          "parseInt(%1)", Argument::Variable},

    {toNumber,  Info::ConstantValue, bools,            "%1", Argument::ZeroOrOne},
    {toNumber,  Info::ConstantValue, strings,          "parseFloat(\"%1\")", Argument::Quoted},
    {toNumber,  Info::ObjectValue,   bools,            "(qml_%1?1:0)"},
    {toNumber,  Info::ObjectValue,   numbers,          "qml_%1"},
    {toNumber,  Info::ObjectValue,   strings,          "parseFloat(qml_%1)"},
    {toNumber,  Info::VariableValue, bools,            "(%1?1:0)", Argument::Variable},
    {toNumber,  Info::VariableValue, variableNumbers,  "%1", Argument::Variable},
    {toNumber,  Info::VariableValue, strings,          "parseFloat(%1)", Argument::Variable},

    {toColor,   Info::ConstantValue, anyData,          R"("%1")", Argument::Quoted},
    {toColor,   Info::ObjectValue,   anyData,          "qmlViewer.convertToColorFromName(qml_%1)"},
    {toColor,   Info::VariableValue, anyData,          "qmlViewer.convertToColorFromName(%1)", Argument::Variable},

    {toCode,    Info::ConstantValue, numbers,          "%1", Argument::Numeral},
    {toCode,    Info::ConstantValue, colors,           R"("%1")", Argument::Quoted},
    {toCode,    Info::ConstantValue, anyData,          "%1"},
    {toCode,    Info::OperatorValue, anyData,          "%1"},
    {toCode,    Info::FunctionValue, anyData,          "%1"},
    {toCode,    Info::CommandValue,  anyData,          "%1"},
});

constexpr auto mathRows = std::to_array<Row>({
    {toAny, Info::OperatorValue, anyData,         "%1"},
    {toAny, Info::ConstantValue, bools,           "%1", Argument::ZeroOrOne},
    {toAny, Info::ConstantValue, floats,          "Math.%1", Argument::Value, Words::MathValues},
    {toAny, Info::ConstantValue, numbers,         "%1", Argument::Numeral},
    {toAny, Info::ConstantValue, strings,         "parseFloat(\"%1\")", Argument::Quoted},
    {toAny, Info::ObjectValue,   bools,           "(qml_%1?1:0)"},
    {toAny, Info::ObjectValue,   numbers,         "qml_%1"},
    {toAny, Info::ObjectValue,   strings,         "parseFloat(qml_%1)"},
    {toAny, Info::VariableValue, bools,           "(%1?1:0)", Argument::Variable},
    {toAny, Info::VariableValue, variableNumbers, "%1", Argument::Variable},
    {toAny, Info::VariableValue, strings,         "parseFloat(%1)", Argument::Variable},
    {toAny, Info::VariableValue, logs,            R"("%1")", Argument::Quoted},
    {toAny, Info::FunctionValue, anyData,         "Math.%1()", Argument::Value, Words::CompleteFunctions},
    {toAny, Info::FunctionValue, anyData,         "qmlViewer.%1(", Argument::Value, Words::DeviceFunctions},
    {toAny, Info::FunctionValue, anyData,         "Math.%1("},
});

constexpr auto stringRows = std::to_array<Row>({
    {toAny, Info::OperatorValue, anyData,                   "%1"},
    {toAny, Info::ConstantValue, anyData,                   R"("%1")", Argument::Quoted},
    {toAny, Info::ObjectValue,   bools,                     "(qml_%1?1:0)"},
    {toAny, Info::ObjectValue,   anyData,                   "qml_%1"},
    {toAny, Info::VariableValue, bools,                     "(%1?1:0)", Argument::Variable},
    {toAny, Info::VariableValue, variableNumbers | strings, "%1", Argument::Variable},
    {toAny, Info::VariableValue, logs,                      R"("%1")", Argument::Quoted},
    {toAny, Info::FunctionValue, anyData,                   "\"\".%1(", Argument::Value, Words::MethodFunctions},
    {toAny, Info::FunctionValue, anyData,                   "qmlViewer.%1("},
});
// clang-format on

std::span<const Row> rowsOf(ExpressionRules::Kind kind)
{
    switch (kind) {
    case ExpressionRules::Kind::Math:
        return mathRows;
    case ExpressionRules::Kind::String:
        return stringRows;
    default:
        return generalRows;
    }
}

const Row *findRow(ExpressionRules::Kind kind, const Info &term, Info::OutputType output)
{
    if (output > Info::NoOutput) {
        return nullptr;
    }
    const std::span<const Row> rows = rowsOf(kind);
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row &candidate) {
        return candidate.valueType == term.valueType() && (candidate.outputs >> output & 1U) != 0
               && (candidate.dataTypes >> term.dataType() & 1U) != 0
               && (candidate.words == 0 || (candidate.words & Words::setsOf(term.value())) != 0);
    });
    return row == rows.end() ? nullptr : &*row;
}

void appendNumeral(QString &code, QStringView digits)
{
    if (digits.startsWith(u'-') || digits.startsWith(u'+')) {
        code += digits.front();
        digits = digits.sliced(1);
    }
    while (digits.size() > 1 && digits[0] == u'0' && digits[1].isDigit()) {
        digits = digits.sliced(1);
    }
    code += digits;
}

//! Rounds halves up, as everywhere in the model and as Math.round() on the device does.
QString rounded(const QString &text)
{
    return ValueConversion::toQmlString(ValueConversion::restrictDecimals(ExpressionRules::toNumber(text), 0),
                                        0);
}

void appendTruth(QString &code, bool truth)
{
    code += truth ? "true"_L1 : "false"_L1;
}

void appendArgument(QString &code, Argument argument, const QString &value)
{
    switch (argument) {
    case Argument::Value:
        code += value;
        break;
    case Argument::Quoted:
        code += Common::TextHelper::toQmlValueString(value);
        break;
    case Argument::Variable:
        code += uR"(qmlViewer.getVariableValue("%1"))"_s.arg(Common::TextHelper::toQmlValueString(value));
        break;
    case Argument::Numeral:
        appendNumeral(code, value);
        break;
    case Argument::Rounded:
        code += rounded(value);
        break;
    case Argument::ZeroOrOne:
        code += value == "true"_L1 ? u'1' : u'0';
        break;
    case Argument::NumberTruth:
        appendTruth(code, value != "0"_L1 && value != "0.0"_L1 && value != "NaN"_L1);
        break;
    case Argument::TextTruth:
        appendTruth(code, value.compare("false"_L1, Qt::CaseInsensitive) != 0);
        break;
    case Argument::DigitsTruth:
        appendTruth(code, value != "0"_L1);
        break;
    }
}

void appendRow(QString &code, const Row &row, const QString &value)
{
    const QLatin1StringView text(row.text);
    const qsizetype place = text.indexOf("%1"_L1);
    code += text.first(place);
    appendArgument(code, row.argument, value);
    code += text.sliced(place + 2);
}

bool isElementItself(const Info &target, const Info &source)
{
    return target.dataType() == Info::ReferenceData && source.dataType() == Info::ReferenceData
           && source.valueType() == Info::ObjectValue && source.value().endsWith(".id"_L1);
}

//! Whether the runtime must convert the source to the type of the target property.
bool needsConversion(const Info &target, const Info &source)
{
    constexpr quint32 strict = colors | strings | integers;
    return (strict >> target.dataType() & 1U) != 0 && source.dataType() != target.dataType();
}

} // namespace

bool ExpressionCode::appendAllowed(QString &code, Kind kind, const Info &term, Info::OutputType output)
{
    const Row *row = findRow(kind, term, output);
    if (!row) {
        return false;
    }
    const qsizetype size = code.size();
    appendRow(code, *row, term.value());
    return code.size() > size;
}

bool ExpressionCode::appendTerm(QString &code, Kind kind, const Info &term, Info::OutputType output)
{
    const bool needsTypes = kind == Kind::Math || kind == Kind::String;
    const bool allowed =
        needsTypes ? ExpressionRules::allows(kind, term) : ExpressionRules::allowsUntyped(kind, term);
    return allowed && appendAllowed(code, kind, term, output);
}

bool ExpressionCode::appendSelector(QString &code, Kind kind, const Info &term)
{
    return term.dataType() == Info::BooleanData && ExpressionRules::allows(kind, term)
           && appendTerm(code, Kind::General, term, Info::RawOutput);
}

bool ExpressionCode::appendAssignment(QString &code, const Info &target, const Info &source,
                                      Info::OutputType output)
{
    QString sourceCode;
    if (!ExpressionRules::allowsUntyped(Kind::Assign, target)
        || !appendTerm(sourceCode, Kind::Assign, source, output)) {
        return false;
    }
    const QString &path = target.value();
    const QString type = QString::number(int(Info::variableType(target.dataType())));
    if (target.valueType() == Info::VariableValue) {
        code += u"qmlViewer.setVariableValue(\"%1\", %2, %3);"_s.arg(
            Common::TextHelper::toQmlValueString(path), sourceCode, type);
        return true;
    }
    if (target.valueType() != Info::ObjectValue || !path.contains(u'.')) {
        return false;
    }
    if (isElementItself(target, source)) {
        code += u"qml_%1 = qml_%2;"_s.arg(path, ObjectPath::firstSegment(source.value()));
    } else if (needsConversion(target, source)) {
        code += u"qmlViewer.assignPropertyValue(qml_%1, \"%2\", %3, %4);"_s.arg(
            ObjectPath::firstSegment(path), ObjectPath::lastSegment(path), type, sourceCode);
    } else {
        code += u"qml_%1 = %2;"_s.arg(path, sourceCode);
    }
    return true;
}

QString ExpressionCode::parserString(const Info &term)
{
    const QString &value = term.value();
    if (term.valueType() == Info::FunctionValue) {
        return value + ((Words::setsOf(value) & Words::CompleteFunctions) != 0 ? "()"_L1 : "("_L1);
    }
    if (term.valueType() != Info::ConstantValue) {
        return value;
    }
    if (term.dataType() == Info::StringData) {
        return u'"' + Common::TextHelper::toQmlValueString(value) + u'"';
    }
    QString numeral;
    appendNumeral(numeral, value);
    return numeral;
}

} // namespace Halvane::Corvex::Designer
