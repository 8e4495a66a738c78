// SPDX-License-Identifier: MIT
#include "corvex/checks/ExpressionSyntax.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;

TEST(ExpressionSyntax, FindsThePlaceOfAnError)
{
    struct Case
    {
        QString code;
        int expressionLine, expressionColumn; // 0, 0: correct
        int statementLine, statementColumn;
    };
    const Case cases[]{
        {u"\"a\\nb\u00e9\" // note"_s, 0, 0, 0, 0},
        {u"x.y = 1;\nf(2);"_s, 1, 8, 0, 0},
        {u""_s, 1, 1, 0, 0},
        {u"a\n  b c"_s, 2, 5, 2, 5},
        {u"1 +"_s, 1, 4, 1, 4},
        {u"( 1\n + 2"_s, 2, 5, 2, 5},
        {u"1 ) + ( 2"_s, 1, 3, 1, 3},
        {u"}"_s, 1, 2, 1, 2},
        {u"#FF0000"_s, 1, 1, 1, 1},
        {u"a == #FF0000"_s, 1, 6, 1, 6},
        {u"\"a\nb\""_s, 1, 0, 1, 0},
        {u"a\u2028b c"_s, 2, 3, 2, 3},
        {u"} property int x: 3; function g() {"_s, 1, 0, 1, 0},
        {u"007.5"_s, 1, 0, 1, 0},
    };
    ExpressionSyntax syntax;
    for (const Case &c : cases) {
        SCOPED_TRACE(qPrintable(c.code));
        const auto expression = syntax.checkExpression(c.code);
        EXPECT_EQ(expression.valid, c.expressionLine == 0);
        EXPECT_EQ(expression.line, c.expressionLine);
        EXPECT_EQ(expression.column, c.expressionColumn);
        EXPECT_EQ(expression.message.isEmpty(), expression.valid);
        const auto statements = syntax.checkStatements(c.code);
        EXPECT_EQ(statements.line, c.statementLine);
        EXPECT_EQ(statements.column, c.statementColumn);
    }
}

TEST(ExpressionSyntax, RunsNothingAndKeepsNothing)
{
    ExpressionSyntax syntax;
    EXPECT_TRUE(syntax.checkStatements(u"while (true) {}"_s).valid);
    EXPECT_TRUE(syntax.checkExpression(u"(function() { while (true) {} })()"_s).valid);
    EXPECT_FALSE(syntax.checkStatements(u"} while (true) {} {"_s).valid);
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(syntax.checkStatements(u"let twice = 1; const once = 2;"_s).valid);
        EXPECT_TRUE(syntax.checkStatements(u"var Math = null; function evaluate() {}"_s).valid);
    }
}

TEST(ExpressionSyntax, SurvivesDeepAndLongText)
{
    ExpressionSyntax syntax;
    const auto times = [](int count, const QString &text) { return text.repeated(count); };
    const int depth = 100'000;
    EXPECT_FALSE(syntax.checkExpression(QString(depth, u'[')).valid);
    EXPECT_TRUE(syntax.checkStatements(times(depth, u"qml_a.b = 1 + f(2, 3.5);\n"_s)).valid);
    const auto inDocument = [&syntax](const QString &code) {
        return syntax.checkDocument(u"import QtQuick 1.1\nItem {\n\tx: %1\n\ty: 1\n}\n"_s.arg(code));
    };
    EXPECT_TRUE(inDocument(u"[1%1]"_s.arg(times(depth, u", a && f(2)"_s))).valid);
    // Nested forms with a depth limit: 900 levels are accepted, 5,000 are reported.
    const auto expressions = [&times](int count) {
        return QStringList{QString(count, u'(') + u'1' + QString(count, u')'),
                           u'1' + times(count, u" + a"_s),
                           times(count, u"- "_s) + u'1',
                           times(count, u"a ? 1 : "_s) + u'2',
                           times(count, u"f( "_s) + u"\")\\\"\""_s + times(count, u" )"_s),
                           QString(count / 90, u'(') + u'a' + times(count / 90, times(89, u" * b"_s) + u')'),
                           u'a' + times(count, u".b"_s)};
    };
    for (const QString &code : expressions(900)) {
        EXPECT_TRUE(syntax.checkExpression(code).valid) << qPrintable(code.left(20));
        EXPECT_TRUE(inDocument(code).valid) << qPrintable(code.left(20));
    }
    for (const QString &code : expressions(5'000)) {
        const auto result = inDocument(code);
        EXPECT_FALSE(syntax.checkStatements(code).valid) << qPrintable(code.left(20));
        EXPECT_EQ(result.line, 3) << qPrintable(code.left(20));
        EXPECT_EQ(result.message, u"It is nested more than 1000 levels deep."_s);
    }
}
