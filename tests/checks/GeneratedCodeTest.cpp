// SPDX-License-Identifier: MIT
#include "corvex/checks/ExpressionSyntax.h"
#include "corvex/checks/private/rules/PlainQml.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/expressions/MathInfo.h"
#include "corvex/values/records/StringInfo.h"

#include <gtest/gtest.h>
#include <random>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;
using List = GeneralDataList;

namespace {

//! Writes expressions that are valid and grammatical for their kind, with values that are hard to quote.
class Author
{
public:
    explicit Author(unsigned seed)
        : m_random(seed)
    { }

    int below(int count) { return int(m_random() % unsigned(count)); }

    List write(List::InfoType type)
    {
        List terms;
        if (type == List::AssignExpression) {
            for (int pairs = 1 + below(3); pairs > 0; --pairs) {
                terms << (below(2) ? variable() : element()) << operand(type);
            }
        } else {
            expression(terms, type, 3);
        }
        return terms;
    }

private:
    QString oneOf(const QStringList &texts) { return texts[below(int(texts.size()))]; }
    Info::DataType oneOf(std::initializer_list<Info::DataType> types)
    {
        return types.begin()[below(int(types.size()))];
    }
    static Info sign(const QString &text) { return {Info::OperatorValue, Info::OperatorData, text}; }

    Info element()
    {
        const QStringList paths{u"rect1.x"_s, u"group1.rect1.color"_s, u"a.default"_s,
                                u"p\u00fcmpe.\u6c34"_s};
        return {Info::ObjectValue,
                oneOf({Info::BooleanData, Info::IntegerData, Info::FloatData, Info::NumberData,
                       Info::StringData}),
                oneOf(paths)};
    }

    Info variable()
    {
        const QStringList names{u"speed"_s, u"a\"b"_s,        u"%1%2"_s,
                                u"\\"_s,    u"line\nend\r"_s, u"\u2028\u2029\u0001\U0001f600"_s};
        return {Info::VariableValue, oneOf({Info::BooleanData, Info::NumberData, Info::StringData}),
                oneOf(names)};
    }

    Info constant(List::InfoType type)
    {
        const bool plain = type == List::MathExpression || type == List::StringExpression;
        switch (below(plain ? 4 : 5)) {
        case 0:
            return {Info::ConstantValue, Info::BooleanData, oneOf({u"true"_s, u"false"_s})};
        case 1:
            return {Info::ConstantValue, Info::IntegerData,
                    oneOf({u"0"_s, u"-0"_s, u"-9223372036854775808"_s, u"0010"_s})};
        case 2:
            return {Info::ConstantValue, below(2) ? Info::FloatData : Info::NumberData,
                    oneOf({u"0."_s, u".0"_s, u"-.5e-3"_s, u"+007.50"_s, u"NaN"_s, u"-Infinity"_s, u"1e300"_s,
                           u"00"_s})};
        case 3:
            return {Info::ConstantValue, Info::StringData,
                    oneOf({u""_s, u"\""_s, u"\\"_s, u"</script>#%1"_s, u"\n\r\t\u2028\u2029"_s,
                           QString(QChar(0)) + u'1'})};
        default:
            return {Info::ConstantValue, Info::ColorData, u"#80FF00aa"_s};
        }
    }

    Info operand(List::InfoType type)
    {
        switch (below(3)) {
        case 0:
            return constant(type);
        case 1:
            return element();
        default:
            return variable();
        }
    }

    void call(List &terms, List::InfoType type, int depth)
    {
        const bool math = type == List::MathExpression;
        const Info function(Info::FunctionValue, Info::FunctionData,
                            oneOf(math ? MathInfo::mathFunctions() : StringInfo::stringFunctions()));
        terms << function;
        if (function.value() == u"random") {
            return;
        }
        for (int arguments = below(3); arguments >= 0; --arguments) {
            expression(terms, type, depth - 1);
            if (arguments > 0) {
                terms << sign(u","_s);
            }
        }
        terms << sign(u")"_s);
    }

    void operation(List &terms, List::InfoType type, int depth)
    {
        const QStringList comparing{u"&&"_s,  u"||"_s, u"=="_s, u"==="_s, u"!="_s,
                                    u"!=="_s, u">"_s,  u">="_s, u"<"_s,   u"<="_s};
        const QStringList computing{u"+"_s, u"-"_s, u"*"_s, u"/"_s,  u"%"_s,
                                    u"&"_s, u"|"_s, u"^"_s, u"<<"_s, u">>"_s};
        expression(terms, type, depth - 1);
        terms << sign(oneOf(type == List::BoolExpression || below(2) ? comparing : computing));
        if (type == List::MathExpression && below(4) == 0) {
            terms << sign(oneOf({u"-"_s, u"~"_s, u"+"_s}));
        }
        expression(terms, type, depth - 1);
    }

    void selection(List &terms, List::InfoType type, int depth)
    {
        Info selector = operand(type);
        while (selector.dataType() != Info::BooleanData) {
            selector = operand(type);
        }
        terms << selector << sign(u"?"_s);
        expression(terms, type, depth - 1);
        terms << sign(u":"_s);
        expression(terms, type, depth - 1);
    }

    void expression(List &terms, List::InfoType type, int depth)
    {
        const bool calls = type == List::MathExpression || type == List::StringExpression;
        const int choice = depth > 0 ? below(calls ? 5 : 3) : 0;
        switch (choice) {
        case 0:
            terms << operand(type);
            break;
        case 1:
            operation(terms, type, depth);
            break;
        case 2:
            terms << sign(u"("_s);
            expression(terms, type, depth - 1);
            terms << sign(u")"_s);
            break;
        case 3:
            call(terms, type, depth);
            break;
        default:
            selection(terms, type, depth);
            break;
        }
    }

    std::mt19937 m_random;
};

} // namespace

TEST(GeneratedCode, IsCorrectForValidExpressionsOfEveryKindAndType)
{
    constexpr int expressionsOfEach = 400;
    ExpressionSyntax syntax;
    Author author(20240607);
    for (int kind = List::GeneralExpression; kind <= List::StringExpression; ++kind) {
        const auto type = List::InfoType(kind);
        for (int output = Info::RawOutput; output < Info::NoOutput; ++output) {
            QString all;
            for (int i = 0; i < expressionsOfEach; ++i) {
                const List terms = author.write(type);
                ASSERT_TRUE(terms.isValidValueType(type) && terms.isValidDataType(type)
                            && terms.isValidValue(type));
                const QString code = terms.toQmlString(Info::OutputType(output), type);
                ASSERT_FALSE(code.isEmpty()) << qPrintable(terms.toString()) << ' ' << kind << ' ' << output;
                all += type == List::AssignExpression ? code + u'\n' : u"x = (%1);\n"_s.arg(code);
            }
            const auto result = syntax.checkStatements(all);
            ASSERT_TRUE(result.valid) << qPrintable(result.message) << '\n'
                                      << qPrintable(all.section(u'\n', result.line - 1, result.line - 1));
        }
    }
}

TEST(GeneratedCode, IsCorrectWithPlainNames)
{
    ExpressionSyntax syntax;
    Author author(11);
    for (int i = 0; i < 300; ++i) {
        const bool math = i % 2 == 0;
        QStringList pieces;
        for (Info term : author.write(math ? List::MathExpression : List::StringExpression)) {
            if (term.valueType() == Info::VariableValue) {
                term.setValue(u"speed"_s);
            }
            pieces << (math ? MathInfo::parserString(term) : StringInfo::parserString(term));
        }
        const QString text = pieces.join(u' ');
        EXPECT_TRUE(syntax.checkExpression(text).valid) << qPrintable(text);
    }
}

//! Texts of the same shape are equivalent: invalid code never has the shape of valid code.
TEST(GeneratedCode, TheShapeOfWrongCodeIsWrong)
{
    const QStringList alike{u"x: \"a\" + qml_b.x * 12"_s, u"x: \"\\n'/\\\"\" + qml_tank_7.x * 345"_s};
    EXPECT_EQ(qmlShape(alike[0]), qmlShape(alike[1]));
    for (const auto &[left, right] :
         std::initializer_list<QPair<QString, QString>>{{u"x: 010"_s, u"x: 1"_s},
                                                        {u"x: 0x1"_s, u"x: 1"_s},
                                                        {u"x: 1e5"_s, u"x: 1"_s},
                                                        {u"f: \"use strict\""_s, u"f: \"a\""_s},
                                                        {u"x: \"\\x\""_s, u"x: \"a\""_s},
                                                        {u"x: 'a'"_s, u"x: 'b'"_s},
                                                        {u"x: 1 /*2*/"_s, u"x: 1 /*3*/"_s},
                                                        {u"x: \"a"_s, u"x: \"b"_s}}) {
        EXPECT_NE(qmlShape(left), qmlShape(right)) << qPrintable(left);
    }
    ExpressionSyntax syntax;
    Author author(5);
    const auto canRead = [&syntax](const QString &code) {
        return syntax.checkDocument(u"Item {\nx: %1\n}"_s.arg(code)).valid;
    };
    int broken = 0;
    for (int i = 0; i < 400; ++i) {
        QString code =
            author.write(List::MathExpression).toQmlString(Info::NumberOutput, List::MathExpression);
        EXPECT_TRUE(canRead(qmlShape(code))) << qPrintable(code);
        code.remove(author.below(int(code.size())), 1);
        const bool isBroken = !canRead(code);
        broken += isBroken ? 1 : 0;
        EXPECT_FALSE(isBroken && canRead(qmlShape(code))) << qPrintable(code);
    }
    EXPECT_GT(broken, 50);
}
