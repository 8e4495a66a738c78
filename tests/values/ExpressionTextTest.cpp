// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ExpressionText.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Info = GeneralDataInfo;
using List = GeneralDataList;

//! A project with a few names.
class Names : public ExpressionNames
{
public:
    Traits traitsOf(const QString &path) const override
    {
        return {path == "lamp.opacity"_L1 ? 1.0 : 0, path == "lamp.id"_L1};
    }
    std::optional<Info> find(const QString &path) const override
    {
        static const QHash<QString, Info::DataType> types{
            {u"level"_s, Info::NumberData},        {u"alarm"_s, Info::BooleanData},
            {u"and"_s, Info::BooleanData},         {u"history"_s, Info::LogData},
            {u"title"_s, Info::StringData},        {u"lamp.visible"_s, Info::BooleanData},
            {u"Main.lamp.x"_s, Info::IntegerData}, {u"lamp.color"_s, Info::ColorData},
            {u"lamp.opacity"_s, Info::NumberData}, {u"lamp.id"_s, Info::StringData},
            {u"tint"_s, Info::ColorData},
        };
        const auto type = types.constFind(path);
        return type == types.cend()
                   ? std::nullopt
                   : std::optional(
                       Info(path.contains(u'.') ? Info::ObjectValue : Info::VariableValue, *type, path));
    }
};

const Names names;

} // namespace

TEST(ExpressionTextTest, ReadsWhatPeopleWriteAndPrintsItBack)
{
    const struct
    {
        List::InfoType kind;
        List::OutputType output;
        const char16_t *text;
        const char16_t *stored;
        const char16_t *printed; //!< null: as the text
    } cases[] = {
        {List::MathExpression, Info::NumberOutput, u"level", u"0406level", nullptr},
        {List::MathExpression, Info::NumberOutput, u"level*2+6", u"<0406level><0101*><02042><0101+><02046>",
         u"level * 2 + 6"},
        {List::MathExpression, Info::NumberOutput, u"level - -2", u"<0406level><0101-><0204-2>", nullptr},
        {List::MathExpression, Info::NumberOutput, u"- 2", u"<0101-><02042>", nullptr},
        {List::MathExpression, Info::NumberOutput, u"-level-2", u"<0101-><0406level><0101-><02042>",
         u"-level - 2"},
        {List::MathExpression, Info::NumberOutput, u"sqrt(level) * 2",
         u"<0502sqrt><0406level><0101)><0101*><02042>", nullptr},
        {List::MathExpression, Info::NumberOutput, u"max(random(), PI, 2f, 0.5)",
         u"<0502max><0502random><0101,><0205PI><0101,><02052><0101,><02050.5><0101)>", nullptr},
        {List::MathExpression, Info::NumberOutput, u"getLogMax(history)",
         u"<0502getLogMax><040Ahistory><0101)>", nullptr},
        {List::MathExpression, Info::NumberOutput, u"alarm ? 1 : 0",
         u"<0403alarm><0101?><02041><0101:><02040>", nullptr},
        {List::BoolExpression, Info::BooleanOutput, u"level > 10 && !=alarm", nullptr, nullptr},
        {List::BoolExpression, Info::BooleanOutput, u"level >= Main.lamp.x and not alarm",
         u"<0406level><0101>=><0304Main.lamp.x><0101&&><0403alarm><0101==><02030>", nullptr},
        {List::BoolExpression, Info::BooleanOutput, u"not (alarm or 'and')",
         u"<0101(><0403alarm><0101||><0403and><0101)><0101==><02030>", u"(alarm or 'and') == false"},
        {List::BoolExpression, Info::BooleanOutput, u"(alarm == false) or 'and' == false",
         u"<0101(><0403alarm><0101==><02030><0101)><0101||><0403and><0101==><02030>",
         u"(not alarm) or not 'and'"},
        {List::BoolExpression, Info::BooleanOutput, u"level > 1 == alarm == false",
         u"<0406level><0101>><02041><0101==><0403alarm><0101==><02030>", nullptr},
        {List::StringExpression, Info::StringOutput, u"concat(\"Level \\\"\\u{b0}\", level)",
         u"<0502concat><0207TGV2ZWwgIsKw><0101,><0406level><0101)>", u"concat(\"Level \\\"°\", level)"},
        {List::StringExpression, Info::StringOutput, u"concat(\"\\ud83d\\ude00\\u{1F600}\", '\\u0061larm')",
         u"<0502concat><02078J+YgPCfmIA=><0101,><0403alarm><0101)>",
         u"concat(\"\U0001F600\U0001F600\", alarm)"},
        {List::GeneralExpression, Info::ColorOutput, u"#c62828", u"0208FFC62828", u"#C62828"},
        {List::GeneralExpression, Info::RawOutput, u"0x1a2B", u"02091A2B", u"0x1A2B"},
        {List::GeneralExpression, Info::RawOutput, u"", u"", nullptr},
        {List::AssignExpression, Info::RawOutput, u"lamp.color = #80FF0000; level = -26",
         u"<0308lamp.color><020880FF0000><0406level><0204-1A>", nullptr},
        {List::MathExpression, Info::NumberOutput, u"010 + level xor -007",
         u"<0204A><0101+><0406level><0101^><0204-7>", u"10 + level xor -7"},
        // In a text, "+" would join the numbers.
        {List::StringExpression, Info::StringOutput, u"concat(title, level * 1.8 + 32, \"x\" + level + 1)",
         u"<0502concat><0407title><0101,><0406level><0101*><02051.8><0101-><0204-20><0101,><0207eA==><0101+>"
         "<0406level><0101+><02041><0101)>",
         u"concat(title, level * 1.8 - -32, \"x\" + level + 1)"},
        {List::StringExpression, Info::StringOutput,
         u"(level + 0) * 2 + -level + (alarm ? 1 : 2) + length(title) + (title) + 3",
         u"<0101(><0406level><0101-><02040><0101)><0101*><02042><0101-><0406level><0101-><0101-><0101(>"
         "<0403alarm><0101?><02041><0101:><02042><0101)><0101-><0101-><0502length><0407title><0101)><0101+>"
         "<0101(><0407title><0101)><0101+><02043>",
         u"(level - 0) * 2 - level - -(alarm ? 1 : 2) - -length(title) + (title) + 3"},
        {List::StringExpression, Info::StringOutput, u"level + (alarm ? \"on\" : 1)",
         u"<0406level><0101+><0101(><0403alarm><0101?><0207b24=><0101:><02041><0101)>", nullptr},
        {List::BoolExpression, Info::RawOutput, u"lamp.color == #1D3040 or #80FF0000 != lamp.color",
         u"<0308lamp.color><0101==><0207IzFkMzA0MA==><0101||><0207IzgwZmYwMDAw><0101!=><0308lamp.color>",
         u"lamp.color == \"#1d3040\" or \"#80ff0000\" != lamp.color"},
        {List::BoolExpression, Info::RawOutput, u"(lamp.color) != (\"red\")",
         u"<0101(><0308lamp.color><0101)><0101!=><0101(><0207I2ZmMDAwMA==><0101)>",
         u"(lamp.color) != (\"#ff0000\")"},
        {List::BoolExpression, Info::RawOutput, u"tint == \"red\" or (\"#1d3040\") != (tint)",
         u"<0408tint><0101==><0207I0ZGRkYwMDAw><0101||><0101(><0207I0ZGMUQzMDQw><0101)><0101!=><0101(><"
         u"0408tint>"
         "<0101)>",
         u"tint == \"#FFFF0000\" or (\"#FF1D3040\") != (tint)"},
        // In a text, constants are texts and booleans are 0 and 1.
        {List::StringExpression, Info::StringOutput,
         u"(alarm) != (true) and not level and not alarm and not alarm ? 1 : 2",
         u"<0101(><0403alarm><0101)><0101!=><0101(><02041><0101)><0101&&><0406level><0101==><02040><0101&&>"
         "<0403alarm><0101==><02040><0101&&>"
         "<0403alarm><0101==><02030><0101?><02041><0101:><02042>",
         u"(alarm) != (1) and level == 0 and not alarm and not alarm ? 1 : 2"},
        {List::StringExpression, Info::StringOutput, u"level + \"\" * 2 + 2 * \"3\"", nullptr, nullptr},
        {List::BoolExpression, Info::RawOutput, u"1", u"02041", nullptr},
        {List::MathExpression, Info::NumberOutput, u"gone::number + 'a b'::log",
         u"<0406gone><0101+><040Aa b>", nullptr},
    };
    for (const auto &[kind, output, text, stored, printed] : cases) {
        const QString given = QString::fromUtf16(text);
        const ExpressionPurpose purpose{kind, output};
        const ExpressionText::Reading reading = ExpressionText::read(given, purpose, names);
        if (!stored) {
            EXPECT_TRUE(reading.error) << qPrintable(given);
            continue;
        }
        EXPECT_FALSE(reading.error) << qPrintable(given) << ": " << qPrintable(reading.error->message);
        EXPECT_EQ(reading.terms.toString(), QString::fromUtf16(stored));
        EXPECT_EQ(ExpressionText::print(reading.terms, purpose, names),
                  printed ? QString::fromUtf16(printed) : given);
    }
}

TEST(ExpressionTextTest, ErrorsHaveAPlaceAndAReason)
{
    const struct
    {
        const char16_t *text;
        qsizetype position;
        const char *message; //!< a part of it
    } cases[] = {
        {u"level +", 7, "incomplete"},
        {u"levl + 1", 0, "no such variable"},
        {u"root(level)", 0, "no such function"},
        {u"level level", 6, "operator is missing"},
        {u"level + * 2", 8, "value is missing"},
        {u"level ) 2", 6, "value is missing"},
        {u"(level > 2) ? 1 : 0", 10, "Only a boolean"},
        {u"2 + (alarm) ? 1 : 0", 4, "Omit the parentheses"},
        {u"max(1 2)", 6, "\",\" or an operator"},
        {u"max(1, (1 2))", 10, "An operator is missing"},
        {u"\"\\u 123\"", 1, "not an escape"},
        {u"\"\\u{}\"", 1, "not an escape"},
        {u"\"\\u{110000}\"", 1, "not an escape"},
        {u"\"\\ud83d\"", 0, "half of a character"},
        {u"not max(1, 2)", 4, "boolean name"},
        {u"not not alarm", 4, "boolean name"},
        {u"not PI", 4, "boolean name"},
        {u"level = 2", 6, "=="},
        {u"'level", 0, "closing quote"},
        {u"level + 2x", 8, "not a number"},
        {u"level + $", 8, "no meaning"},
        {u"#12345", 0, "not a color"},
        {u"level::text", 5, "not a type"},
        {u"not level + 2", 10, "parentheses"},
        {u"2 == not alarm", 5, "parentheses"},
        {u"level + not", 8, "parentheses"},
        {u"random(2)", 7, "no arguments"},
        {u"trim(title)", 0, "only be used in text expressions"},
        {u"level > 2 and !alarm", 14, "Write \"not\""},
        {u"0 < level < 100", 10, "0 < level and level < 100"},
        {u"0 == level == 100", 11, "two values"},
        {u"level ^ 2", 6, "pow(x, y)"},
        {u"level <> 2", 6, "Write \"!=\""},
        {u"level\u00d72", 5, "Write \"*\""},
    };
    for (const auto &[text, position, message] : cases) {
        const QString given = QString::fromUtf16(text);
        const ExpressionText::Reading reading =
            ExpressionText::read(given, {List::MathExpression, Info::NumberOutput}, names);
        ASSERT_TRUE(reading.error) << qPrintable(given);
        EXPECT_EQ(reading.error->position, position) << qPrintable(given);
        EXPECT_TRUE(reading.error->message.contains(QString::fromUtf8(message)))
            << qPrintable(given) << ": " << qPrintable(reading.error->message);
    }
}

TEST(ExpressionTextTest, OperationsThatTheDeviceUnderstandsDifferentlyAreRefused)
{
    struct Case
    {
        List::InfoType kind;
        const char16_t *text;
        const char *message; //!< a part of it; null if the text is accepted
    };
    using enum List::InfoType;
    const Case cases[] = {
        {StringExpression, u"concat(level === 3)", "Write \"==\""},
        {StringExpression, u"concat(alarm !== true)", "Write \"!=\""},
        {StringExpression, u"alarm === alarm ? 1 : 2", "Write \"==\""},
        {StringExpression, u"concat(title === \"a\", title == true)", nullptr},
        {StringExpression, u"concat(level == true)", "1 for true"},
        {StringExpression, u"concat(alarm == \"true\")", "without quotes"},
        {StringExpression, u"concat(false or alarm)", "counts as true"},
        {StringExpression, u"concat(title > 5)", "mode - 0"},
        {StringExpression, u"concat((alarm ? 5 : 6) > level, level > 5, title - 0 > 5)", nullptr},
        {StringExpression, u"concat((alarm ? 5 : 6) > 10)", "mode - 0"},
        {StringExpression, u"level * \"high\"", "not a number"},
        {MathExpression, u"title == \"open\" and not alarm ? 5 : 6", "cannot use texts"},
        {MathExpression, u"(title == title) * 2", "cannot use texts"},
        {MathExpression, u"level + \"abc\"", "cannot use texts"},
        {MathExpression, u"(title == 5) + (title > \"5\")", nullptr},
        {MathExpression, u"(level == true) * 2", "level == 1"},
        {BoolExpression, u"level > \"high\"", "a number with a text"},
        {BoolExpression, u"level == true", "level == 1"},
        {BoolExpression, u"(alarm) == (\"true\")", "without quotes"},
        {BoolExpression, u"alarm == title", "a boolean value with a text"},
        {BoolExpression, u"(title == 2) == alarm or title == \"2\" and level == \"2\" or not level", nullptr},
        {BoolExpression, u"alarm == 2", "same type"},
        {BoolExpression, u"alarm === 1", "Write \"==\""},
        {BoolExpression, u"(lamp.color) === #FF0000", "Write \"==\""},
        {BoolExpression, u"level == #FF0000", "a color with a number"},
        {BoolExpression, u"tint == \"fancy\"", "a color with a text"},
        {BoolExpression, u"tint == #FF0000 and title == \"red\"", nullptr},
        {BoolExpression, u"50 <= (lamp.opacity) and alarm", "Write 0.5 for 50 %"},
        {BoolExpression, u"lamp.opacity == 1 and level > 50", nullptr},
        {AssignExpression, u"level = 50; lamp.opacity = 50", "Write 0.5 for 50 %"},
        {AssignExpression, u"lamp.id = \"a\"", "only be read"},
    };
    for (const auto &[kind, text, message] : cases) {
        const auto error = ExpressionText::read(QString::fromUtf16(text), {kind}, names).error;
        EXPECT_EQ(error.has_value(), message != nullptr)
            << qPrintable(QString::fromUtf16(text)) << (error ? qPrintable(error->message) : "");
        EXPECT_TRUE(!message || (error && error->message.contains(QLatin1StringView(message))))
            << qPrintable(QString::fromUtf16(text)) << ": " << (error ? qPrintable(error->message) : "");
    }
}

TEST(ExpressionTextTest, RulesHaveAConditionAndAnEffect)
{
    const QString text =
        u"when level > 10 and title == \"when x do\" do alarm = true; level = 0 when 'do' do "
        "alarm = false"_s;
    // A quoted name is no word of the language.
    const ExpressionText::RuleReading unknown = ExpressionText::readRules(text, names);
    ASSERT_TRUE(unknown.error);
    EXPECT_EQ(unknown.error->unknownName, u"do"_s);
    EXPECT_EQ(text.sliced(unknown.error->position, unknown.error->length), u"'do'"_s);

    const QString known = QString(text).replace(u"'do'"_s, u"alarm"_s);
    const ExpressionText::RuleReading reading = ExpressionText::readRules(known, names);
    ASSERT_FALSE(reading.error) << qPrintable(reading.error->message);
    EXPECT_EQ(reading.rules.toString(),
              u"<0406level><0101>><0204A><0101&&><0407title><0101==><0207d2hlbiB4IGRv>|<0403alarm><02031>"
              "<0406level><02040>, 0403alarm|<0403alarm><02030>"_s);
    EXPECT_EQ(ExpressionText::printRules(reading.rules, names), known);
    EXPECT_TRUE(ExpressionText::printRules(PairList(u"|"_s), names).isNull());
    const struct
    {
        const char16_t *text;
        const char *message; //!< a part of it
    } incomplete[] = {
        {u"when do alarm = true", "condition after \"when\""},
        {u"when alarm do", "assignment after \"do\""},
        {u"when alarm do when alarm do level = 0", "assignment after \"do\""},
        {u"when alarm do alarm = not alarm", "Only a single value or name"},
        {u"when alarm do level = level + 1", "Only a single value or name"},
        {u"when alarm do level = max(1, 2)", "Only a single value or name"},
    };
    for (const auto &[rules, message] : incomplete) {
        const auto error = ExpressionText::readRules(QString::fromUtf16(rules), names).error;
        EXPECT_TRUE(error && error->message.contains(QLatin1StringView(message)))
            << qPrintable(QString::fromUtf16(rules));
    }
    for (const char16_t *wrong : {u"level > 10", u"when alarm", u"when alarm do level = 0 do alarm = true",
                                  u"when alarm when alarm do level = 0", u"do level = 0"}) {
        EXPECT_TRUE(ExpressionText::readRules(QString::fromUtf16(wrong), names).error)
            << qPrintable(QString::fromUtf16(wrong));
    }
    const QString foreign = u"when !alarm do level = 0"_s;
    const ExpressionText::RuleReading refused = ExpressionText::readRules(foreign, names);
    ASSERT_TRUE(refused.error);
    EXPECT_EQ(refused.error->position, foreign.indexOf(u'!'));
    EXPECT_TRUE(refused.error->message.contains(u"\"not\""_s)) << qPrintable(refused.error->message);
    for (const char16_t *wrong :
         {u"when alarm do level = $", u"when alarm do title = \"a", u"!", u"when alarm do title = \"\\q\""}) {
        EXPECT_TRUE(ExpressionText::readRules(QString::fromUtf16(wrong), names).error);
    }
}

//! Any list that the model can hold is read back to the same terms, whether it makes sense or not.
TEST(ExpressionTextTest, EverythingPrintedIsReadBack)
{
    std::mt19937 random(7);
    const auto number = [&random](int below) { return std::uniform_int_distribution(0, below - 1)(random); };
    const QStringList texts{
        u"level"_s,    u"alarm"_s,     u"Main.lamp.x"_s,   u"and"_s, u"a b.c"_s,   u""_s,
        u"1"_s,        u"-1"_s,        u"0.5"_s,           u"PI"_s,  u"true"_s,    u"1A"_s,
        u"e5"_s,       u"1e5"_s,       u"NaN"_s,           u"01"_s,  u"\"'\\\n"_s, u"x\u0001"_s,
        u"80FF0000"_s, u"#FFC62828"_s, u"°C \U0001F600"_s, u"+"_s,   u"("_s,       u")"_s,
        u"sqrt"_s,     u"concat"_s};
    const QStringList words =
        texts + ExpressionVocabulary::mathOperators() + ExpressionVocabulary::booleanOperators()
        + ExpressionVocabulary::mathFunctions() + ExpressionVocabulary::stringFunctions();
    int readable = 0;
    for (int round = 0; round < 20'000; ++round) {
        List terms;
        for (int i = number(6); i >= 0; --i) {
            terms.append(Info::ValueType(number(8)), Info::DataType(number(14)),
                         words.at(number(int(words.size()))));
        }
        const ExpressionPurpose purpose{List::InfoType(number(5)), Info::RawOutput, number(6) == 0};
        const QString printed = ExpressionText::print(terms, purpose, names);
        readable += !printed.isNull();
        EXPECT_TRUE(printed.isNull() || ExpressionText::read(printed, purpose, names).terms == terms)
            << qPrintable(printed);
    }
    EXPECT_GT(readable, 100);
}

} // namespace Halvane::Corvex::Designer
