// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/AssignInfo.h"
#include "corvex/values/expressions/MathInfo.h"
#include "corvex/values/records/BoolInfo.h"
#include "corvex/values/records/ModbusCommandInfo.h"
#include "corvex/values/records/StringInfo.h"

#include "support/CodeShape.h"

#include <QColor>

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;

namespace {

Info constant(Info::DataType type, const QString &value)
{
    return {Info::ConstantValue, type, value};
}

Info element(Info::DataType type, const QString &path)
{
    return {Info::ObjectValue, type, path};
}

Info variable(Info::DataType type, const QString &name)
{
    return {Info::VariableValue, type, name};
}

} // namespace

TEST(GeneralDataInfo, TextForm)
{
    struct Case
    {
        const char16_t *text;
        Info term;
    };
    const Case cases[]{
        {u"0000", Info()},
        {u"02031", constant(Info::BooleanData, u"true"_s)},
        {u"02030", constant(Info::BooleanData, u"false"_s)},
        {u"0204-1A", constant(Info::IntegerData, u"-26"_s)},
        {u"02040", constant(Info::IntegerData, u"0"_s)},
        {u"02047FFFFFFFFFFFFFFF", constant(Info::IntegerData, u"9223372036854775807"_s)},
        {u"0204-8000000000000000", constant(Info::IntegerData, u"-9223372036854775808"_s)},
        {u"0205.0", constant(Info::FloatData, u".0"_s)},
        {u"0207", constant(Info::StringData, QString())},
        {u"02075rC0Ij48", constant(Info::StringData, u"\u6c34\"><"_s)},
        {u"020880FF0000", constant(Info::ColorData, u"#80FF0000"_s)},
        {u"0209BEEF", constant(Info::HexData, u"BEEF"_s)},
        {u"020D0A", constant(Info::CommandData, u"0A"_s)},
        {u"070D0a", Info(Info::CommandValue, Info::CommandData, u"0a"_s)},
        {u"0406speed", variable(Info::NumberData, u"speed"_s)},
        {u"0307group1.text1.text", element(Info::StringData, u"group1.text1.text"_s)},
        {u"0101>=", Info(Info::OperatorValue, Info::OperatorData, u">="_s)},
    };
    for (const Case &c : cases) {
        const QString text = QString::fromUtf16(c.text);
        bool ok = false;
        EXPECT_EQ(Info(text, &ok), c.term) << qPrintable(text);
        EXPECT_TRUE(ok) << qPrintable(text);
        EXPECT_EQ(c.term.toString(), text);
    }
    // Digits are read in upper and lower case.
    EXPECT_EQ(Info(u"020d0aff"_s).value(), u"0AFF");
    EXPECT_EQ(Info(u"020880ff000a"_s).value(), u"#80FF000A");
    EXPECT_EQ(Info(u"0204-00"_s).value(), u"0");
}

TEST(GeneralDataInfo, RefusedTexts)
{
    const QString texts = u"|020|0800|020E|+203x| 203x|0x03x|0203|0203true|0204|0204-|0204--1|0204+1|"
                          "02040x1|0204 1|020412G|0207!|0207QQ|02081234567|0208#80FF0000|0208123456789|"
                          "0208GGFF0000|0209 1|0209XY|020D0G|02048000000000000000|0204-8000000000000001|"
                          "020410000000000000000"_s;
    for (const QString &text : texts.split(u'|')) {
        bool ok = true;
        EXPECT_EQ(Info(text, &ok), Info());
        EXPECT_FALSE(ok) << qPrintable(text);
    }
    // A value that does not match its type never reads back as another value.
    EXPECT_EQ(constant(Info::IntegerData, u"abc"_s).toString(), u"0204");
}

namespace {

//! Whatever the value, there is code only for types that fit together, and only in known shapes.
void writesNothingForeign(Info &term)
{
    const QStringList values{
        u""_s,           u"alert(1)"_s, u"a.b"_s,         u"a.b(1)"_s,    u"a\"+alert(1)+\"b"_s,
        u"1;alert(1)"_s, u"true"_s,     u"1"_s,           u"-1e5"_s,      u"00FF"_s,
        u"#80FF0000"_s,  u"\\\""_s,     u"x\nalert(1)"_s, u"("_s,         u"random"_s,
        u"trim"_s,       u"PI"_s,       u"this.b"_s,      u"a.b=alert"_s, u"qml_a"_s};
    for (const QString &value : values) {
        term.setValue(value);
        for (int output = 0; output < 9; ++output) {
            const QString code = term.toQmlString(Info::OutputType(output));
            if (code.isEmpty()) {
                continue;
            }
            EXPECT_TRUE(term.isValidValueType() && term.isValidDataType() && term.isValidValue())
                << qPrintable(term.toString()) << " gives " << qPrintable(code);
            // Digits are written unchanged, as is the path of a reference.
            const bool isBare = term.valueType() == Info::CommandValue || term.dataType() == Info::HexData
                                || term.dataType() == Info::ReferenceData;
            EXPECT_TRUE(foreignCode(code).isEmpty() || (isBare && code == value))
                << qPrintable(term.toString()) << " gives " << qPrintable(code);
        }
    }
}

} // namespace

TEST(GeneralDataInfo, TypesOfEachKind)
{
    struct Kind
    {
        const char *name;
        std::unique_ptr<Info> term;
        const char16_t *valueTypes;
        std::array<const char16_t *, 8> dataTypes; // hexadecimal digits, by value type
    };
    const Kind kinds[]{
        {"general",
         std::make_unique<Info>(),
         u"0123457",
         {u"0", u"1", u"3456789", u"0345678ABC", u"03678", u"2", u"", u""}},
        {"math",
         std::make_unique<MathInfo>(),
         u"012345",
         {u"0", u"1", u"034567", u"034567", u"0367A", u"02", u"", u""}},
        {"string",
         std::make_unique<StringInfo>(),
         u"012345",
         {u"0", u"1", u"034567", u"034567", u"0367A", u"02", u"", u""}},
        {"bool",
         std::make_unique<BoolInfo>(),
         u"01234",
         {u"0", u"1", u"345678", u"0345678", u"03678", u"", u"", u""}},
        {"assign",
         std::make_unique<AssignInfo>(),
         u"0234",
         {u"0", u"", u"345678C", u"0345678C", u"03678", u"", u"", u""}},
        {"command",
         std::make_unique<ModbusCommandInfo>(),
         u"07",
         {u"0", u"", u"", u"", u"", u"", u"", u"0D"}},
    };
    const auto holds = [](const char16_t *digits, int number) {
        return QString::fromUtf16(digits).contains(QString::number(number, 16).toUpper());
    };
    for (const Kind &kind : kinds) {
        for (int valueType = 0; valueType < 10; ++valueType) {
            kind.term->setValueType(Info::ValueType(valueType));
            EXPECT_EQ(kind.term->isValidValueType(), holds(kind.valueTypes, valueType))
                << kind.name << valueType;
            for (int dataType = 0; dataType < 17; ++dataType) {
                kind.term->setDataType(Info::DataType(dataType));
                EXPECT_EQ(kind.term->isValidDataType(),
                          valueType < 8 && dataType < 14
                              && holds(kind.dataTypes[size_t(valueType)], dataType))
                    << kind.name << ' ' << valueType << ' ' << dataType;
                writesNothingForeign(*kind.term);
            }
        }
    }
}

TEST(GeneralDataInfo, ValuesOfConstants)
{
    struct Case
    {
        Info::DataType type;
        QStringList good, bad;
    };
    const Case cases[]{
        {Info::BooleanData, {u"true"_s, u"false"_s}, {u""_s, u"True"_s, u"1"_s, u"true "_s}},
        {Info::IntegerData,
         {u"0"_s, u"-7"_s, u"007"_s, u"-9223372036854775808"_s},
         {u""_s, u"-"_s, u"+1"_s, u" 1"_s, u"1 "_s, u"0x1"_s, u"1.0"_s, u"1e3"_s, u"9223372036854775808"_s,
          u"NaN"_s, u"\u0663"_s}},
        {Info::FloatData,
         {u"0."_s, u".0"_s, u"-1.5e-3"_s, u"+2"_s, u"NaN"_s, u"Infinity"_s, u"-Infinity"_s, u"1e308"_s},
         {u""_s, u"."_s, u"1,5"_s, u" 1"_s, u"1 "_s, u"nan"_s, u"inf"_s, u"+Infinity"_s, u"1e999"_s,
          u"0x1p3"_s, u"PI"_s, u"1_0"_s}},
        {Info::NumberData, {u"3"_s, u"3.5"_s}, {u"E"_s, u"three"_s}},
        {Info::StringData, {u""_s, u"any \"text\"\n"_s}, {}},
        {Info::ColorData,
         {u"#80FF0000"_s, u"#abcdef01"_s},
         {u"red"_s, u"#FF0000"_s, u"80FF00000"_s, u"#GGFF0000"_s}},
        {Info::HexData, {u"0"_s, u"beef"_s, u"ABC"_s}, {u""_s, u"0x1"_s, u"G"_s}},
        {Info::ReferenceData,
         {u"label1"_s, u"group1.label1.id"_s, u"null"_s},
         {u""_s, u"a..b"_s, u"a b"_s, u".a"_s, u"a.1b"_s, u"1b"_s, u"new"_s, u"null.a"_s}},
        {Info::CommandData, {u"00ff"_s}, {u""_s, u"0"_s, u"0G"_s}},
    };
    for (const Case &c : cases) {
        for (const QString &value : c.good) {
            EXPECT_TRUE(AssignInfo(constant(c.type, value)).isValidValue())
                << c.type << ' ' << qPrintable(value);
        }
        for (const QString &value : c.bad) {
            EXPECT_FALSE(AssignInfo(constant(c.type, value)).isValidValue())
                << c.type << ' ' << qPrintable(value);
        }
    }
    EXPECT_TRUE(MathInfo(constant(Info::FloatData, u"SQRT1_2"_s)).isValid(false));
    EXPECT_FALSE(MathInfo(constant(Info::NumberData, u"PI"_s)).isValid(false));
}

TEST(GeneralDataInfo, ValuesOfWordsAndNames)
{
    struct Case
    {
        Info::ValueType type;
        const char16_t *value;
        bool general, boolean, math, string;
    };
    const Case cases[]{
        {Info::NoValue, u"", true, true, true, true},
        {Info::NoValue, u"x", false, false, false, false},
        {Info::OperatorValue, u"<<", true, false, true, true},
        {Info::OperatorValue, u"===", true, true, true, true},
        {Info::OperatorValue, u"?", true, false, true, true},
        {Info::OperatorValue, u"**", false, false, false, false},
        {Info::OperatorValue, u"", false, false, false, false},
        {Info::FunctionValue, u"poly", true, false, true, false},
        {Info::FunctionValue, u"trim", true, false, false, true},
        {Info::FunctionValue, u"eval", false, false, false, false},
        {Info::ObjectValue, u"a.b", true, true, true, true},
        {Info::ObjectValue, u"a;b", false, false, false, false},
        {Info::VariableValue, u"it's %1", true, true, true, true},
        {Info::VariableValue, u"", false, false, false, false},
        {Info::VariableValue, u"a><b", false, false, false, false},
    };
    for (const Case &c : cases) {
        const Info term(c.type, Info::NoData, QString::fromUtf16(c.value));
        EXPECT_EQ(term.isValidValue(), c.general) << qPrintable(term.value());
        EXPECT_EQ(BoolInfo(term).isValidValue(), c.boolean) << qPrintable(term.value());
        EXPECT_EQ(MathInfo(term).isValidValue(), c.math) << qPrintable(term.value());
        EXPECT_EQ(StringInfo(term).isValidValue(), c.string) << qPrintable(term.value());
    }
    EXPECT_TRUE(Info().isValid(true));
    EXPECT_FALSE(Info().isValid(false));
    EXPECT_FALSE(variable(Info::NoData, u"speed"_s).isValid(false));
    EXPECT_TRUE(ModbusCommandInfo(Info::CommandValue, Info::CommandData, u"0aFF"_s).isValid(false));
    EXPECT_FALSE(ModbusCommandInfo(Info::CommandValue, Info::CommandData, u""_s).isValid(true));
}

TEST(GeneralDataInfo, TranslatesToEachOutput)
{
    struct Case
    {
        Info term;
        std::array<const char16_t *, 8> code; // by output type
    };
#define GET u"qmlViewer.getVariableValue(\"v\")"
#define TEXT u"qmlViewer.getVariableValueString(\"v\")"
#define COLOR(x) u"qmlViewer.convertToColorFromName(" x u")"
    const Case cases[]{
        {constant(Info::BooleanData, u"true"_s),
         {u"true", u"\"true\"", u"true", u"1", u"1", u"1", u"\"true\"", u""}},
        {constant(Info::IntegerData, u"-007"_s),
         {u"-7", u"\"-007\"", u"true", u"-7", u"-7", u"-7", u"\"-007\"", u""}},
        {constant(Info::FloatData, u"-2.5"_s),
         {u"-2.5", u"\"-2.5\"", u"true", u"-2", u"-2.5", u"-2.5", u"\"-2.5\"", u""}},
        {constant(Info::NumberData, u"0.0"_s),
         {u"0.0", u"\"0.0\"", u"false", u"0", u"0.0", u"0.0", u"\"0.0\"", u""}},
        {constant(Info::NumberData, u"NaN"_s),
         {u"NaN", u"\"NaN\"", u"false", u"NaN", u"NaN", u"NaN", u"\"NaN\"", u""}},
        {constant(Info::StringData, u"FALSE"_s),
         {u"\"FALSE\"", u"\"FALSE\"", u"false", u"parseInt(\"FALSE\")", u"parseFloat(\"FALSE\")",
          u"parseFloat(\"FALSE\")", u"\"FALSE\"", u""}},
        {constant(Info::StringData, u"a\"\\\n%1\u2028"_s),
         {u"\"a\\\"\\\\\\n%1\\u2028\"", u"\"a\\\"\\\\\\n%1\\u2028\"", u"true",
          u"parseInt(\"a\\\"\\\\\\n%1\\u2028\")", u"parseFloat(\"a\\\"\\\\\\n%1\\u2028\")",
          u"parseFloat(\"a\\\"\\\\\\n%1\\u2028\")", u"\"a\\\"\\\\\\n%1\\u2028\"", u""}},
        {constant(Info::ColorData, u"#FF00FF00"_s),
         {u"\"#FF00FF00\"", u"\"#FF00FF00\"", u"\"#FF00FF00\"", u"\"#FF00FF00\"", u"\"#FF00FF00\"",
          u"\"#FF00FF00\"", u"\"#FF00FF00\"", u""}},
        {constant(Info::HexData, u"0"_s), {u"0", u"\"0\"", u"false", u"0", u"0", u"0", u"\"0\"", u""}},
        {constant(Info::FloatData, u"#"_s), {u"", u"", u"", u"", u"", u"", u"", u""}},
        {element(Info::BooleanData, u"a.b"_s),
         {u"qml_a.b", u"(qml_a.b?\"true\":\"false\")", u"qml_a.b", u"(qml_a.b?1:0)", u"(qml_a.b?1:0)",
          u"(qml_a.b?1:0)", COLOR("qml_a.b"), u""}},
        {element(Info::IntegerData, u"a.b"_s),
         {u"qml_a.b", u"String(qml_a.b)", u"Boolean(qml_a.b)", u"qml_a.b", u"qml_a.b", u"qml_a.b",
          COLOR("qml_a.b"), u""}},
        {element(Info::FloatData, u"a.b"_s),
         {u"qml_a.b", u"String(qml_a.b)", u"Boolean(qml_a.b)", u"Math.round(qml_a.b)", u"qml_a.b", u"qml_a.b",
          COLOR("qml_a.b"), u""}},
        {element(Info::StringData, u"a.b"_s),
         {u"qml_a.b", u"qml_a.b", u"Boolean(qml_a.b)", u"parseInt(qml_a.b)", u"parseFloat(qml_a.b)",
          u"parseFloat(qml_a.b)", COLOR("qml_a.b"), u""}},
        {element(Info::ColorData, u"a.b"_s),
         {u"qml_a.b", u"", u"Boolean(qml_a.b)", u"", u"", u"", COLOR("qml_a.b"), u""}},
        {element(Info::StringData, u"a.b;c"_s), {u"", u"", u"", u"", u"", u"", u"", u""}},
        {variable(Info::BooleanData, u"v"_s),
         {GET, TEXT, GET, u"(" GET u"?1:0)", u"(" GET u"?1:0)", u"(" GET u"?1:0)", COLOR(GET), u""}},
        {variable(Info::NumberData, u"v"_s),
         {GET, TEXT, u"Boolean(" GET u")", u"Math.round(" GET u")", GET, GET, COLOR(GET), u""}},
        {variable(Info::StringData, u"v"_s),
         {GET, TEXT, u"Boolean(" GET u")", u"parseInt(" GET u")", u"parseFloat(" GET u")",
          u"parseFloat(" GET u")", COLOR(GET), u""}},
        {variable(Info::NoData, u"v"_s), {GET, TEXT, u"Boolean(" GET u")", u"", u"", u"", COLOR(GET), u""}},
        {variable(Info::StringData, u""_s), {u"", u"", u"", u"", u"", u"", u"", u""}},
        {Info(Info::OperatorValue, Info::OperatorData, u"=="_s),
         {u"==", u"==", u"==", u"==", u"==", u"==", u"==", u""}},
        {Info(), {u"", u"", u"", u"", u"", u"", u"", u""}},
    };
#undef GET
#undef TEXT
#undef COLOR
    for (const Case &c : cases) {
        for (int output = 0; output < 8; ++output) {
            EXPECT_EQ(c.term.toQmlString(Info::OutputType(output)),
                      QString::fromUtf16(c.code[size_t(output)]))
                << qPrintable(c.term.toString()) << ' ' << output;
        }
        EXPECT_EQ(c.term.toQmlString(Info::OutputType(8)), QString());
    }
    EXPECT_EQ(variable(Info::NumberData, u"a\"b%1%2"_s).toQmlString(Info::FloatOutput),
              u"qmlViewer.getVariableValue(\"a\\\"b%1%2\")");
    // Halves round up, and nothing overflows.
    EXPECT_EQ(constant(Info::FloatData, u"2.5"_s).toQmlString(Info::IntegerOutput), u"3");
    EXPECT_EQ(constant(Info::FloatData, u"-2.6"_s).toQmlString(Info::IntegerOutput), u"-3");
    EXPECT_EQ(constant(Info::FloatData, u"1e19"_s).toQmlString(Info::IntegerOutput), u"10000000000000000000");
    EXPECT_EQ(constant(Info::FloatData, u"-Infinity"_s).toQmlString(Info::IntegerOutput), u"-Infinity");
}

TEST(GeneralDataInfo, TranslatesMathematicsAndText)
{
    struct Case
    {
        Info term;
        const char16_t *math, *string;
    };
    const auto function = [](const QString &name) {
        return Info(Info::FunctionValue, Info::FunctionData, name);
    };
#define GET(x) u"qmlViewer.getVariableValue(\"" x u"\")"
    const Case cases[]{
        {constant(Info::BooleanData, u"true"_s), u"1", u"\"true\""},
        {constant(Info::IntegerData, u"-3"_s), u"-3", u"\"-3\""},
        {constant(Info::FloatData, u"PI"_s), u"Math.PI", u""},
        {constant(Info::FloatData, u"0."_s), u"0.", u"\"0.\""},
        {constant(Info::StringData, u"1\""_s), u"parseFloat(\"1\\\"\")", u"\"1\\\"\""},
        {constant(Info::ColorData, u"#FF00FF00"_s), u"", u""},
        {element(Info::BooleanData, u"a.b"_s), u"(qml_a.b?1:0)", u"(qml_a.b?1:0)"},
        {element(Info::FloatData, u"a.b"_s), u"qml_a.b", u"qml_a.b"},
        {element(Info::StringData, u"a.b"_s), u"parseFloat(qml_a.b)", u"qml_a.b"},
        {variable(Info::BooleanData, u"v"_s), u"(" GET("v") u"?1:0)", u"(" GET("v") u"?1:0)"},
        {variable(Info::NumberData, u"v"_s), GET("v"), GET("v")},
        {variable(Info::StringData, u"v"_s), u"parseFloat(" GET("v") u")", GET("v")},
        {variable(Info::LogData, u"log\""_s), u"\"log\\\"\"", u"\"log\\\"\""},
        {variable(Info::NoData, u"v"_s), u"", u""},
        {function(u"random"_s), u"Math.random()", u""},
        {function(u"sqrt"_s), u"Math.sqrt(", u""},
        {function(u"poly"_s), u"qmlViewer.poly(", u""},
        {function(u"getLogAvg"_s), u"qmlViewer.getLogAvg(", u""},
        {function(u"concat"_s), u"", u"\"\".concat("},
        {function(u"trim"_s), u"", u"qmlViewer.trim("},
        {Info(Info::OperatorValue, Info::OperatorData, u","_s), u",", u","},
        {Info(), u"", u""},
    };
#undef GET
    for (const Case &c : cases) {
        for (const auto output : {Info::RawOutput, Info::IntegerOutput, Info::ColorOutput}) {
            EXPECT_EQ(MathInfo(c.term).toQmlString(output), QString::fromUtf16(c.math))
                << qPrintable(c.term.toString());
            EXPECT_EQ(StringInfo(c.term).toQmlString(output), QString::fromUtf16(c.string))
                << qPrintable(c.term.toString());
        }
    }
    EXPECT_EQ(MathInfo::parserString(function(u"sqrt"_s)), u"sqrt(");
    EXPECT_EQ(MathInfo::parserString(function(u"random"_s)), u"random()");
    EXPECT_EQ(MathInfo::parserString(constant(Info::FloatData, u"PI"_s)), u"PI");
    EXPECT_EQ(StringInfo::parserString(constant(Info::StringData, u"a\"b"_s)), u"\"a\\\"b\"");
    EXPECT_EQ(StringInfo::parserString(element(Info::StringData, u"a.text"_s)), u"a.text");
    EXPECT_EQ(StringInfo::parserString(variable(Info::StringData, u"speed"_s)), u"speed");
}

TEST(GeneralDataInfo, RenamesWholeNames)
{
    struct Case
    {
        Info term;
        const char16_t *oldName, *newName;
        Info::NameKind kind;
        const char16_t *value; // null if it is not found
    };
    const Info nested = element(Info::ColorData, u"group1.rect1.color"_s);
    const Info speed = variable(Info::NumberData, u"speed"_s);
    const Info device = element(Info::DeviceData, u"can1"_s);
    const Case cases[]{
        {nested, u"rect1", u"box", Info::AnyName, u"group1.box.color"},
        {nested, u"group1", u"rect1", Info::ElementName, u"rect1.rect1.color"},
        {nested, u"group1.rect1", u"rect1", Info::ElementName, u"rect1.color"},
        {nested, u"rect1", u"box", Info::VariableName, nullptr},
        {nested, u"rect1", u"", Info::AnyName, nullptr},
        {nested, u"color", u"x", Info::AnyName, nullptr},
        {nested, u"rect1.color", u"x", Info::AnyName, nullptr},
        {nested, u"", u"x", Info::AnyName, nullptr},
        {element(Info::ColorData, u"rect10.myrect1.rect1x.x"_s), u"rect1", u"box", Info::AnyName, nullptr},
        {element(Info::ColorData, u"a.aa.a.a"_s), u"a", u"a%1a", Info::AnyName, u"a%1a.aa.a%1a.a"},
        {element(Info::ColorData, u"speed.color"_s), u"speed", u"rate", Info::VariableName, nullptr},
        {speed, u"speed", u"rate", Info::VariableName, u"rate"},
        {speed, u"speed", u"rate", Info::ElementName, nullptr},
        {device, u"can1", u"can2", Info::VariableName, u"can2"},
        {constant(Info::StringData, u"rect1.x"_s), u"rect1", u"box", Info::AnyName, nullptr},
        {Info(Info::FunctionValue, Info::FunctionData, u"sin"_s), u"sin", u"x", Info::AnyName, nullptr},
    };
    for (const Case &c : cases) {
        const QString oldName = QString::fromUtf16(c.oldName);
        const QString newName = QString::fromUtf16(c.newName);
        Info term = c.term;
        EXPECT_EQ(term.replaceObject(oldName, newName, c.kind), c.value != nullptr) << qPrintable(oldName);
        EXPECT_EQ(term.value(), c.value ? QString::fromUtf16(c.value) : c.term.value());
        EXPECT_EQ(c.term.containsObject(oldName, c.kind), c.value != nullptr || (c.newName[0] == 0))
            << qPrintable(oldName);
    }
}
