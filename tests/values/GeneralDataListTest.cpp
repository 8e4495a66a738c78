// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/GeneralDataList.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;
using Info = GeneralDataInfo;
using List = GeneralDataList;

namespace {

//! The expression with that text form, which must be valid.
List list(const QString &text)
{
    bool ok = false;
    List result(text, &ok);
    EXPECT_TRUE(ok) << qPrintable(text);
    return result;
}

} // namespace

TEST(GeneralDataList, TextForm)
{
    const QStringList texts{u""_s,
                            u"0406speed"_s,
                            u"<0406speed><0101+><0205.5>"_s,
                            u"<0101<><0101>>"_s,
                            u"<0101>>><0101<<><0101>>>"_s,
                            u"<0207><0406a>"_s,
                            u"<0000><0000>"_s};
    const qsizetype counts[]{0, 1, 3, 2, 3, 2, 2};
    for (qsizetype i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(list(texts[i]).count(), counts[i]) << qPrintable(texts[i]);
        EXPECT_EQ(list(texts[i]).toString(), texts[i]);
    }
    for (const QString &text : {u"<0406speed>"_s, u"<>"_s, u"><"_s, u"<><>"_s, u"<0406a><>"_s,
                                u"<0406a><0406b"_s, u"<0406a><0203x><0406b>"_s, u" "_s}) {
        bool ok = true;
        EXPECT_TRUE(List(text, &ok).isEmpty()) << qPrintable(text);
        EXPECT_FALSE(ok) << qPrintable(text);
    }
}

TEST(GeneralDataList, ReadsLongTexts)
{
    const qsizetype count = 1'000'000;
    const QString terms = u"<0406speed>"_s.repeated(count);
    EXPECT_EQ(list(terms).count(), count);
    EXPECT_EQ(list(terms).toString(), terms);
    bool ok = true;
    EXPECT_TRUE(List(u"<"_s + u"><"_s.repeated(count) + u">"_s, &ok).isEmpty());
    EXPECT_FALSE(ok);
    // A path in which the name almost matches at every position.
    List path;
    path.append(Info::ObjectValue, Info::ColorData, u"rect.rec."_s.repeated(count / 10) + u"rect1.color"_s);
    EXPECT_EQ(path.replaceObject(u"rect1"_s, u"box"_s), 1);
    EXPECT_EQ(path.replaceObject(u"rect"_s, u"rect1"_s), 1);
}

TEST(GeneralDataList, ListOperations)
{
    const Info a(u"0406a"_s), b(u"0406b"_s), c(u"0406c"_s), d(u"0406d"_s);
    List terms;
    terms << b << List(QList<Info>{c}) << QList<Info>{d};
    terms.prepend(Info::VariableValue, Info::NumberData, u"a"_s);
    EXPECT_EQ(terms.toList(), (QList<Info>{a, b, c, d}));
    EXPECT_TRUE(terms.insert(4, Info::VariableValue, Info::NumberData, u"a"_s));
    EXPECT_FALSE(terms.insert(6, a));
    EXPECT_FALSE(terms.insert(-1, a));
    EXPECT_EQ(terms.indexOf(a), 0);
    EXPECT_EQ(terms.indexOf(a, 1), 4);
    EXPECT_EQ(terms.lastIndexOf(a), 4);
    EXPECT_EQ(terms.count(a), 2);
    EXPECT_TRUE(terms.startsWith(a) && terms.endsWith(a) && terms.contains(d));
    EXPECT_TRUE(terms.replace(4, Info::VariableValue, Info::NumberData, u"d"_s));
    EXPECT_FALSE(terms.replace(5, a));
    EXPECT_EQ(terms.takeFirst(), a);
    EXPECT_EQ(terms.takeLast(), d);
    terms[0] = d;
    EXPECT_EQ(terms, (List(QList<Info>{d, c, d})));
    EXPECT_EQ(terms.value(3), Info());
    List none;
    none.removeFirst();
    none.removeLast();
    EXPECT_EQ(none.takeLast(), Info());
    EXPECT_EQ(none.first(), none.last());
    EXPECT_FALSE(none.startsWith(Info()) || none.endsWith(Info()));
}

TEST(GeneralDataList, ChecksTermsAsTheGivenKind)
{
    struct Case
    {
        const char16_t *text;
        std::array<const char *, 3>
            passes; // value types, data types, values; one digit for each accepting kind
    };
    const Case cases[]{
        {u"", {"01234", "01234", "01234"}},
        {u"<0406a><0101&&><0406b>", {"0234", "0234", "0234"}},
        {u"<0406a><0101+><0502sin>", {"034", "034", "03"}},
        {u"<0406a><0205PI>", {"01234", "01234", "3"}},
        {u"<030Ba.b><020Ca>", {"01234", "", "01234"}},
        {u"<070D00><0406a>", {"0", "", "01234"}},
    };
    for (const Case &c : cases) {
        const List terms = list(QString::fromUtf16(c.text));
        for (int kind = 0; kind < 7; ++kind) {
            const auto type = List::InfoType(kind);
            const auto passes = [&](size_t check) {
                return QByteArray(c.passes[check]).contains(char('0' + kind));
            };
            EXPECT_EQ(terms.isValidValueType(type), passes(0)) << qPrintable(terms.toString()) << ' ' << kind;
            EXPECT_EQ(terms.isValidDataType(type), passes(1)) << qPrintable(terms.toString()) << ' ' << kind;
            EXPECT_EQ(terms.isValidValue(type), passes(2)) << qPrintable(terms.toString()) << ' ' << kind;
        }
    }
}

TEST(GeneralDataList, TranslatesExpressions)
{
    struct Case
    {
        const char16_t *text;
        List::InfoType type;
        Info::OutputType output;
        const char16_t *code;
    };
    const Case cases[]{
        {u"0406speed", List::GeneralExpression, Info::FloatOutput, u"qmlViewer.getVariableValue(\"speed\")"},
        {u"<0303a.on><0101==><02031>", List::BoolExpression, Info::RawOutput, u"qml_a.on == true"},
        {u"<0308a.color><0101==><0208FF00FF00>", List::BoolExpression, Info::RawOutput,
         u"qml_a.color == \"#FF00FF00\""},
        {u"<0303a.on><0101+><02031>", List::BoolExpression, Info::RawOutput, u""},
        {u"<0406a><0000>", List::GeneralExpression, Info::RawOutput, u""},
        {u"<0406a><0101+><0308c.color>", List::GeneralExpression, Info::StringOutput, u""},
        {u"<0502sqrt><0406a><0101,><0205E><0101)>", List::MathExpression, Info::RawOutput,
         u"Math.sqrt( qmlViewer.getVariableValue(\"a\") , Math.E )"},
        {u"<0303a.on><0101?><02041><0101:><0303b.on>", List::MathExpression, Info::RawOutput,
         u"qml_a.on ? 1 : (qml_b.on?1:0)"},
        {u"<0403a><0101?><02041><0101:><02042>", List::MathExpression, Info::IntegerOutput,
         u"qmlViewer.getVariableValue(\"a\") ? 1 : 2"},
        {u"<02030><0101?><0207QQ==><0101:><0403b>", List::StringExpression, Info::StringOutput,
         u"false ? \"A\" : (qmlViewer.getVariableValue(\"b\")?1:0)"},
        {u"<0101(><0406a><0101>><02043><0101)><0101?><02041><0101:><02040>", List::MathExpression,
         Info::RawOutput, u""},
        {u"<0406a><0101?>", List::MathExpression, Info::RawOutput, u""},
        {u"<0502concat><0407a><0101,><0207Ig==><0101)>", List::StringExpression, Info::RawOutput,
         u"\"\".concat( qmlViewer.getVariableValue(\"a\") , \"\\\"\" )"},
        // Code that would be executed: a text with wrong types, a value that is called, the rest of a text
        // after a "/" that begins a regular expression. A condition converted to a text or a color is always
        // true.
        {u"0707alert(1)", List::GeneralExpression, Info::RawOutput, u""},
        {u"<0307a.constructor.constructor><0101(><0207YQ==><0101)><0101(><0101)>", List::StringExpression,
         Info::StringOutput, u""},
        {u"<0101(><0407a><0101)><0101(><02041><0101)>", List::GeneralExpression, Info::RawOutput, u""},
        {u"<0307a.constructor><0403b>", List::StringExpression, Info::RawOutput, u""},
        {u"<0101/><0207eC8uYShhbGVydCgxKSkvLw==>", List::StringExpression, Info::RawOutput, u""},
        {u"<0406a><0101*><0101/><0207YQ==>", List::MathExpression, Info::RawOutput, u""},
        {u"<0502random><0101/><02042>", List::MathExpression, Info::RawOutput, u"Math.random() / 2"},
        {u"<0209BEEF><0101==><02041>", List::BoolExpression, Info::RawOutput, u""},
        {u"<0403hot><0101?><0208FFC62828><0101:><0208FFC3CDD6>", List::GeneralExpression, Info::ColorOutput,
         u""},
        {u"<0403hot><0101?><02041><0101:><02042>", List::GeneralExpression, Info::StringOutput, u""},
        {u"<0403hot><0101?><02041><0101:><02042>", List::GeneralExpression, Info::RawOutput,
         u"qmlViewer.getVariableValue(\"hot\") ? 1 : 2"},
        {u"0406a", List::InfoType(5), Info::RawOutput, u""},
        {u"0406a", List::InfoType(-1), Info::RawOutput, u""},
        {u"0406a", List::GeneralExpression, Info::NoOutput, u""},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(list(QString::fromUtf16(c.text)).toQmlString(c.output, c.type), QString::fromUtf16(c.code))
            << qPrintable(QString::fromUtf16(c.text));
    }
}

TEST(GeneralDataList, TranslatesAssignments)
{
    struct Case
    {
        const char16_t *text;
        Info::OutputType output;
        const char16_t *code;
    };
    const Case cases[]{
        {u"<0406speed><02045>", Info::RawOutput, u"qmlViewer.setVariableValue(\"speed\", 5, 11);"},
        {u"<0408tint><0208FF00FF00>", Info::ColorOutput,
         u"qmlViewer.setVariableValue(\"tint\", \"#FF00FF00\", 6);"},
        {u"<0407a\"%2><0207JTM=>", Info::StringOutput,
         u"qmlViewer.setVariableValue(\"a\\\"%2\", \"%3\", 4);"},
        {u"<0307a.text><0407t>", Info::RawOutput, u"qml_a.text = qmlViewer.getVariableValue(\"t\");"},
        {u"<0305a.x><02041>", Info::RawOutput, u"qml_a.x = 1;"},
        {u"<0304a.width><0305b.x>", Info::RawOutput,
         u"qmlViewer.assignPropertyValue(qml_a, \"width\", 2, qml_b.x);"},
        {u"<0308g.a.color><0207cmVk>", Info::ColorOutput,
         u"qmlViewer.assignPropertyValue(qml_g, \"color\", 6, \"red\");"},
        {u"<030Ca.link><030Cb.id>", Info::RawOutput, u"qml_a.link = qml_b;"},
        {u"<030Ca.link><030Cb.other>", Info::RawOutput, u"qml_a.link = qml_b.other;"},
        {u"<0406a><02041><0303b.on><02031>", Info::RawOutput,
         u"qmlViewer.setVariableValue(\"a\", 1, 11);\nqml_b.on = true;"},
        {u"<0406a><02041><0406b>", Info::RawOutput, u""},
        {u"<0406a><0101+>", Info::RawOutput, u""},
        {u"<0406a><0000>", Info::RawOutput, u""},
        {u"<02041><02041>", Info::RawOutput, u""},
        {u"<0304a><02041>", Info::RawOutput, u""},
        {u"<0406a><02041><0406b><0308c.color>", Info::StringOutput, u""},
        {u"<0406a><02041>", Info::NoOutput, u""},
        {u"<0404a><02041>", Info::RawOutput, u""},
        {u"<0303a.b><0707alert(1)>", Info::RawOutput, u""},
        {u"<030Ba.b><02031>", Info::RawOutput, u""},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(list(QString::fromUtf16(c.text)).toQmlString(c.output, List::AssignExpression),
                  QString::fromUtf16(c.code))
            << qPrintable(QString::fromUtf16(c.text));
    }
}

TEST(GeneralDataList, DetectsIncompleteExpressions)
{
    const struct
    {
        const char16_t *text;
        List::InfoType type;
        const char16_t *obstacle;
    } cases[]{
        {u"<0502max><0406a><0101,><0101(><0101-><0205PI><0101)><0101)><0101%><0502random>",
         List::MathExpression, u""},
        {u"<0502trim><0101)><0101+><0403b><0101?><0403c><0101?><0207><0101:><0207><0101:><0207>",
         List::StringExpression, u""},
        {u"<0101~><0406a>", List::MathExpression, u""},
        {u"<0406a><0101&&><0101(><0403b>", List::BoolExpression, u"The expression is incomplete."},
        {u"<0406a><0101+>", List::MathExpression, u"The expression is incomplete."},
        {u"<0403a><0101?><02041>", List::MathExpression, u"The expression is incomplete."},
        {u"<0406><0101+><02041>", List::MathExpression, u"The expression is incomplete."},
        {u"<0406a><02041><0406b>", List::AssignExpression, u"The expression is incomplete."},
        {u"<0406a><0406b>", List::MathExpression,
         u"Term 2 of the expression, \"0406b\", cannot follow what is before it."},
        {u"<0406a><0101)>", List::MathExpression, u"Term 2"},
        {u"<0101(><0101)>", List::MathExpression, u"Term 2"},
        {u"<0406a><0101,><0406b>", List::MathExpression, u"Term 2"},
        {u"<0101(><0403a><0101?><02041><0101)><0101:><02042>", List::MathExpression, u"Term 5"},
        {u"<0403a><0101~>", List::MathExpression, u"Term 2"},
        {u"<0502sqrt><0101(>", List::GeneralExpression, u"Term 1"},
        {u"<0406a><0707alert(1)>", List::GeneralExpression,
         u"Term 2 of the expression, \"0707alert(1)\", cannot be used in it."},
    };
    for (const auto &[text, type, obstacle] : cases) {
        const List terms = list(QString::fromUtf16(text));
        const QString expected = QString::fromUtf16(obstacle);
        const QString found = terms.obstacle(type);
        EXPECT_EQ(expected.isEmpty() ? found : found.left(expected.size()), expected)
            << qPrintable(terms.toString());
    }
}

TEST(GeneralDataList, RenamesInAllTerms)
{
    const QString text =
        u"<0308rect1.color><0406rect1><0308Main.rect1.color><0308rect10.color><0207cmVjdDE=>"_s;
    List terms = list(text);
    EXPECT_EQ(terms.replaceObject(u"rect1"_s, u"box"_s, Info::ElementName), 2);
    EXPECT_EQ(terms.toString(),
              u"<0308box.color><0406rect1><0308Main.box.color><0308rect10.color><0207cmVjdDE=>");
    EXPECT_EQ(terms.replaceObject(u"rect1"_s, u"speed"_s, Info::VariableName), 1);
    EXPECT_EQ(terms.replaceScreenObject(u"Main"_s, u"Start"_s), 1);
    EXPECT_EQ(terms.replaceScreenObject(u"box"_s, u""_s), 0);
    EXPECT_EQ(terms.toString(),
              u"<0308box.color><0406speed><0308Start.box.color><0308rect10.color><0207cmVjdDE=>");
    EXPECT_TRUE(terms.containsObject(u"Start.box"_s));
    EXPECT_FALSE(terms.containsObject(u"rect1"_s));
    EXPECT_EQ(terms.removeScreenObject(u"Start"_s), 1);
    EXPECT_EQ(terms.removeObject(u"box"_s), 1);
    EXPECT_EQ(terms.toString(), u"<0308><0406speed><0308><0308rect10.color><0207cmVjdDE=>");
    EXPECT_EQ(list(text).replaceObject(u"rect1"_s, u"box"_s), 3);
}
