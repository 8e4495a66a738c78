// SPDX-License-Identifier: MIT
#include "Program.h"
#include "ValueKinds.h"

#include <QJsonObject>

#include <gtest/gtest.h>
#include <optional>

using namespace Halvane::Corvex::Test;
using namespace Halvane::Corvex::Tool;
using namespace Qt::StringLiterals;

TEST(ValueVerb, KnowsTheCanonicalTextOfEachKind)
{
    struct Case
    {
        QString kind;
        QString text;
        std::optional<QString> canonical;
    };
    const Case cases[] = {
        {u"bool"_s, u"TRUE"_s, u"true"_s},
        {u"bool"_s, u"1"_s, {}},
        {u"int"_s, u"-26"_s, u"-26"_s},
        {u"int"_s, u"2.5"_s, {}},
        {u"real"_s, u"-.50004"_s, u"-0.5"_s},
        {u"real"_s, u"nan"_s, {}},
        {u"string"_s, u"%1 \"a\"\n😀"_s, u"%1 \"a\"\n😀"_s},
        {u"color"_s, u"red"_s, u"#FFFF0000"_s},
        {u"color"_s, u""_s, {}},
        {u"colorlist"_s, u"[red,#80FF0000]"_s, u"[#FFFF0000,#80FF0000]"_s},
        {u"colorlist"_s, u"[]"_s, {}},
        {u"font"_s, u"bold: true;"_s, {}},
        {u"point"_s, u"y: 2; x: 1.0;"_s, u"x: 1; y: 2;"_s},
        {u"point"_s, u"x: 1;"_s, {}},
        {u"size"_s, u"width: 4; height: 2;"_s, u"height: 2; width: 4;"_s},
        {u"polygon"_s, u"x: 0; y: 0;|x: 10; y: 0;"_s, u"x: 0; y: 0; | x: 10; y: 0;"_s},
        {u"polygonlist"_s, u"[x: 0; y: 0;], []"_s, u"[x: 0; y: 0;], []"_s},
        {u"gradient"_s, u"0.999, red"_s, u"0.99, #FFFF0000"_s},
        {u"gradient"_s, u"red"_s, {}},
        {u"group"_s, u"b: 1; B: 2; valueString: x: y; z"_s, u"B: 2; b: 1; valueString:  x: y; z;;"_s},
        {u"group"_s, u"a: 1; b"_s, {}},
        {u"border"_s, u"width: 3; color: blue"_s, u"color: #FF0000FF; width: 3;"_s},
        {u"border"_s, u"width: 3;"_s, {}},
        {u"range"_s, u"minimum: 0; maximum: 5"_s, u"maximum: 5; minimum: 0;"_s},
        {u"valuerange"_s, u"min: 0, max: 9, value1: 1, value2: 2"_s,
         u"value1: 1, value2: 2, min: 0, max: 9"_s},
        {u"valuerange"_s, u"min: 0, max: 9"_s, {}},
        {u"identifier"_s, u"name: speed; scopeType: Project"_s, u"name: speed; scopeType: Project;"_s},
        {u"identifier"_s, u"scopeType: Project;"_s, {}},
        {u"link"_s, u"objectId: a; filterType: Text|Image;"_s, u"filterType: Text | Image; objectId: a;"_s},
        {u"map"_s, u"value: On; key: 1;"_s, u"key: 1; value: On;"_s},
        {u"map"_s, u"key: 1;"_s, {}},
        {u"list"_s, u"a | b"_s, u"a | b"_s},
        {u"condition"_s, u"condition1: GE; value1: 1; condition2: LT; value2: 5; operator: XOR"_s, {}},
        {u"transformorigin"_s, u"Middle"_s, {}},
        {u"inputoutputtype"_s, u"receive"_s, {}},
        {u"generaldata"_s, u"020"_s, {}},
        {u"generaldatalist"_s, u"<0406a><0101+>"_s, u"<0406a><0101+>"_s},
    };
    for (const auto &[kind, text, canonical] : cases) {
        SCOPED_TRACE(qPrintable(kind + u' ' + text));
        const ValueKind *found = findValueKind(kind);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->canonical(text), canonical);
    }
}

TEST(ValueVerb, AcceptsTheExampleOfEachKind)
{
    for (const ValueKind &kind : valueKinds()) {
        const QString example = QString::fromLatin1(kind.example);
        EXPECT_EQ(kind.canonical(example), example) << kind.name;
    }
}

TEST(ValueVerb, ReadsAndPrintsWhatPeopleWrite)
{
    EXPECT_EQ(corvex({u"value"_s, u"size"_s, u"120 x 40"_s}).out, u"height: 40; width: 120;\n"_s);
    EXPECT_EQ(corvex({u"value"_s, u"--readable"_s, u"border"_s, u"width: 2; color: red"_s}).out,
              u"2 #FF0000\n"_s);
    EXPECT_EQ(corvex({u"value"_s, u"--readable"_s, u"int"_s, u"07"_s}).out, u"7\n"_s);
    EXPECT_EQ(corvex({u"expr"_s, u"--forms"_s, u"bool"_s, u"not on::boolean"_s}).out,
              u"not on::boolean\n<0403on><0101==><02030>\n"
              "qmlViewer.getVariableValue(\"on\") == false\n"_s);
}

TEST(ExprVerb, PrintsTheCodeOrTheReasonAgainstIt)
{
    struct Case
    {
        QString kind;
        QString text;
        QString output;
        QString code;
        QString error; //!< its beginning
    };
    const QString speed = u"qmlViewer.getVariableValue(\"speed\")"_s;
    const Case cases[] = {
        {u"general"_s, u""_s, u"raw"_s, u""_s, {}},
        {u"general"_s, u"0307rect1.text"_s, u"raw"_s, u"qml_rect1.text"_s, {}},
        {u"general"_s, u"020880FF0000"_s, u"color"_s, u"\"#80FF0000\""_s, {}},
        {u"general"_s, u"0406speed"_s, u"integer"_s, u"Math.round(%1)"_s.arg(speed), {}},
        {u"math"_s, u"<0406speed><0101*><0204-2>"_s, u"raw"_s, speed + u" * -2"_s, {}},
        {u"bool"_s,
         u"<0303a.b><0502sqrt>"_s,
         u"boolean"_s,
         {},
         u"\"<0303a.b><0502sqrt>\" is not an expression of the kind \"bool\": its term 2, \"0502sqrt\", is not allowed in one.\n"_s},
        {u"string"_s,
         u"<0407name>"_s,
         u"string"_s,
         {},
         u"\"<0407name>\" is not an expression. Terms look like"_s},
        {u"assign"_s,
         u"<0406speed><02043>"_s,
         u"raw"_s,
         u"qmlViewer.setVariableValue(\"speed\", 3, 11);"_s,
         {}},
        {u"math"_s, u"speed::number * -2"_s, u"raw"_s, speed + u" * -2"_s, {}},
        {u"math"_s,
         u"speed * 2"_s,
         u"raw"_s,
         {},
         u"\"speed * 2\" is not an expression of the kind \"math\": At \"speed\": "_s},
        {u"assign"_s,
         u"0304r.x"_s,
         u"raw"_s,
         {},
         u"\"0304r.x\" is not an expression of the kind \"assign\": its terms are not pairs of a target and "
         u"a "
         "source."_s},
        {u"math"_s,
         u"<0406speed><0101?>"_s,
         u"raw"_s,
         {},
         u"\"<0406speed><0101?>\" is not an expression of the kind \"math\": its terms do not fit together.\n"_s},
        {u"math"_s, u"<0406speed><0101*>"_s, u"raw"_s, speed + u" *"_s,
         u"The code is not complete JavaScript at term 2, \"0101*\": "_s},
    };
    for (const auto &[kind, text, output, code, error] : cases) {
        SCOPED_TRACE(qPrintable(kind + u' ' + text));
        const ProgramRun run = corvex({u"expr"_s, kind, text, u"--output"_s, output});
        EXPECT_EQ(run.code, error.isNull() ? 0 : 1);
        EXPECT_EQ(run.out, code.isNull() ? QString() : code + u'\n');
        EXPECT_TRUE(run.error.startsWith(error.isNull() ? QString() : u"corvex: "_s + error))
            << run.error.toStdString();
        EXPECT_EQ(run.error.isEmpty(), error.isNull());
    }
}
