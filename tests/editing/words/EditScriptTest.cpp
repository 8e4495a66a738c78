// SPDX-License-Identifier: MIT
// Edits in words as seen by programs other than the command line. The tests of the command line check each
// edit and the texts of all refusals.
#include "corvex/editing/words/EditScript.h"
#include "corvex/editing/words/ProjectPath.h"

#include "editing/commands/CommandFixture.h"

namespace Halvane::Corvex::Designer::Test {

using namespace Qt::StringLiterals;

class EditScriptTest : public CommandFixture
{ };

TEST_F(EditScriptTest, APlanChangesNothingUntilItsCommandIsPushed)
{
    int asked = 0;
    EditScript script(*project, [&asked] {
        ++asked;
        return false;
    });
    const QString before = text();
    EditPlan plan = script.plan(u"rename Main.rectangle1 tank"_s);
    ASSERT_TRUE(plan.command);
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(stack().push(plan.command.release()));
    EXPECT_TRUE(element("tank"));

    const EditPlan back = script.plan(u"undo"_s);
    EXPECT_FALSE(back.command);
    EXPECT_EQ(back.historySteps, -1);
    EXPECT_EQ(script.plan(u"print Main.tank"_s).output, QStringList{u"Rectangle tank"_s});
    const EditPlan nothing = script.plan(u"  # a remark"_s);
    EXPECT_FALSE(nothing.isRefused() || nothing.command || nothing.historySteps);
    EXPECT_EQ(asked, 0);

    const struct
    {
        QString line;
        EditRefusal::List list;
        QString path;
    } rows[] = {
        {u"explode"_s, EditRefusal::Edits, {}},
        {u"add Nothing Main"_s, EditRefusal::Classes, {}},
        {u"set Main.nowhere.text x"_s, EditRefusal::Contents, u"Main"_s},
        {u"set Main.tank x"_s, EditRefusal::Properties, u"Main.tank"_s},
        {u"delete Main.tnak"_s, EditRefusal::NoList, {}},
        {u"model VTR 50-S"_s, EditRefusal::NoList, {}},
    };
    for (const auto &[line, list, path] : rows) {
        const EditPlan refused = script.plan(line);
        EXPECT_TRUE(refused.isRefused() && !refused.command) << qPrintable(line);
        EXPECT_EQ(refused.refusal.list, list) << qPrintable(line);
        EXPECT_EQ(refused.refusal.path, path) << qPrintable(line);
    }
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(stack().count(), 1);
}

TEST_F(EditScriptTest, ValuesAreReadAndPrintedAsPeopleWriteThem)
{
    EditScript script(*project, [] { return false; });
    const struct
    {
        QString path;
        QString given;
        QString printed; //!< empty: as given
        QString stored;  //!< empty: not compared
    } values[] = {
        {u"text1.textBinding"_s,
         u"concat(\"Level \", speed)"_s,
         {},
         u"<0502concat><0207TGV2ZWwg><0101,><0406speed><0101)>"_s},
        {u"text1.textBinding"_s, u"\"Level\""_s, {}, u"0207TGV2ZWw="_s},
        {u"text1.textBinding"_s,
         u"<0403on><0101?><0207YQ==><0101:><0207Yg==>"_s,
         u"on ? \"a\" : \"b\""_s,
         {}},
        {u"text1.textBinding"_s, u"\"0403on\""_s, {}, u"0207MDQwM29u"_s},
        {u"text1.textBinding"_s, u"\"<b>\""_s, {}, u"0207PGI+"_s},
        {u"text1.colorBinding"_s, u"on ? \"red\" : \"green\""_s, {}, {}},
        {u"text1.colorBinding"_s, u"#C62828"_s, {}, u"0208FFC62828"_s},
        {u"rectangle1.visibleBinding"_s,
         u"speed > 10 and not Main.text1.visible"_s,
         u"speed > 10 and not text1.visible"_s,
         {}},
        {u"text1.horizontalAlignment"_s, u"right"_s, u"AlignRight"_s, u"AlignRight"_s},
        {u"text1.transformOrigin"_s, u"Top left"_s, u"TopLeft"_s, u"TopLeft"_s},
        {u"rectangle1.xBinding"_s,
         u"getLogMax(history) + rectangle2.x * 2"_s,
         {},
         u"<0502getLogMax><040Ahistory><0101)><0101+><0306rectangle2.x><0101*><02042>"_s},
        {u"button1.pressed"_s,
         u"on = true; history = speed"_s,
         {},
         u"<0403on><02031><0406history><0406speed>"_s},
        {u"propertyTrigger1.dataValues"_s,
         u"speed, rectangle1.visible"_s,
         {},
         u"<0406speed><0303rectangle1.visible>"_s},
        {u"logicBuilder1.logicExpression"_s,
         u"when on do speed = 1 when speed > 2 do on = false"_s,
         {},
         u"0403on|<0406speed><02041>, <0406speed><0101>><02042>|<0403on><02030>"_s},
        {u"checkButton1.checkedState"_s,
         u"{ text1.text: \"a; b\"; text1.size: 30 x 20; image1.opacity: 40 }"_s,
         {},
         {}},
        {u"checkButton1.checkedState"_s,
         u"{Main.propertyTrigger1.condition:on}"_s,
         u"{ propertyTrigger1.condition: on }"_s,
         {}},
        {u"action1.propertyChanges"_s, u"{ text1.color: red }"_s, u"{ text1.color: #FF0000 }"_s,
         u"elementName: text1; propertyName: color; valueString: I0ZGRkYwMDAw;"_s},
        {u"image1.source"_s, u"pump.png"_s, {}, {}},
        {u"checkButton1.checkedState"_s,
         u"{ text1.text: 5\" by 3\" pipe; text1.opacity: 40 }"_s,
         u"{ text1.text: \"5\\\" by 3\\\" pipe\"; text1.opacity: 40 }"_s,
         {}},
        {u"checkButton1.checkedState"_s,
         u"{ text1.font: bold 12px \"A;B\"; text1.text: \"\" }"_s,
         u"{ text1.font: \"bold 12px \\\"A;B\\\"\"; text1.text: \"\" }"_s,
         {}},
        {u"text1.text"_s, u"\"two\\nlines \\\"\\u00b0\""_s, u"\"two\\nlines \\\"°\""_s, u"two\nlines \"°"_s},
        {u"text1.text"_s, u"\"plain\""_s, u"plain"_s, u"plain"_s},
        {u"text1.text"_s, u"C:\\new"_s, {}, u"C:\\new"_s},
        {u"rectangle1.size"_s, u"120 x 40"_s, {}, u"height: 40; width: 120;"_s},
        {u"rectangle1.position"_s, u"x: 3; y: 4;"_s, u"3, 4"_s, {}},
        {u"text1.font"_s, u"bold 24px \"DejaVu Sans\""_s, {}, {}},
        {u"text1.font"_s, u"italic 8pt"_s, u"italic 8pt \"DejaVu Sans\""_s, {}},
        {u"text1.font"_s, u"12px Noto Sans"_s, u"12px \"Noto Sans\""_s, {}},
    };
    for (const auto &[path, given, printed, stored] : values) {
        for (const QString &sign : {u"="_s, QString()}) {
            const QString line = u"set Main.%1 %2 %3"_s.arg(path, sign, given);
            EditPlan plan = script.plan(line);
            ASSERT_FALSE(plan.isRefused()) << qPrintable(line + u'\n' + plan.refusal.message);
            EXPECT_EQ(bool(plan.command), !sign.isEmpty()) << qPrintable(line);
            EXPECT_TRUE(!plan.command || stack().push(plan.command.release()))
                << qPrintable(stack().errorString());
        }
        EXPECT_EQ(script.plan(u"print Main."_s + path).output,
                  QStringList(printed.isEmpty() ? given : printed));
        const SharedProperty property = ProjectPath::find(*project, u"Main."_s + path).property;
        EXPECT_TRUE(stored.isEmpty() || property->valueString() == stored)
            << qPrintable(property->valueString());
    }

    for (const char16_t *line : {u"set Main.text1.textBinding \"\"", u"set Main.text1.colorBinding =",
                                 u"set Main.text1.text = ", u"set Main.image1.source"}) {
        EditPlan plan = script.plan(QString::fromUtf16(line));
        ASSERT_TRUE(plan.isRefused() || !plan.command || stack().push(plan.command.release()));
        EXPECT_FALSE(plan.isRefused()) << qPrintable(plan.refusal.message);
    }
    EXPECT_EQ(value(element("text1"), "textBinding") + value(element("text1"), "text"), QString());

    const struct
    {
        QString line;
        QString message; //!< a part of it
    } refusals[] = {
        {u"set Main.text1.textBinding concat(\"Level \", sped)"_s, u"Did you mean \"speed\"?"_s},
        {u"set Main.text1.textBinding concat(\"Level \", speed"_s,
         u"At the end: The expression is incomplete."_s},
        {u"set Main.text1.textBinding speed > 3 ? \"a\" : \"b\""_s, u"Only a boolean variable"_s},
        {u"set Main.rectangle1.visibleBinding on and rectangle2.visble"_s, u"\"rectangle2.visible\""_s},
        {u"set Main.checkButton1.checkedState { text1.text }"_s, u"{ element.property: value"_s},
        {u"set Main.checkButton1.checkedState { propertyTrigger1.condition: sped }"_s,
         u"propertyTrigger1.condition: At \"sped\""_s},
        {u"set Main.checkButton1.checkedState { text1.textBinding: speed }"_s, u"They can set \"text\"."_s},
        {u"set Main.checkButton1.checkedState { text1.xBinding: speed }"_s, u"They can set \"position\"."_s},
        {u"set Main.action1.propertyChanges { button1.pressed: on = true }"_s, u"cannot set \"pressed\""_s},
        {u"set Main.text1.colorBinding concat(\"r\", \"ed\")"_s, u"Functions cannot give a color"_s},
        {u"set Main.text1.colorBinding on ? \"redd\" : \"red\""_s, u"not a color"_s},
        {u"set Main.text1.colorBinding 5"_s, u"not a color"_s},
        {u"set Main.text1.visibleBinding \"no\""_s, u"neither true nor false"_s},
        {u"set Main.checkButton1.checkedState { text1.colr: red }"_s, u"did you mean \"text1.color\"?"_s},
        {u"set Main.checkButton1.checkedState { Other.text1.color: red }"_s, u"There is no property"_s},
        {u"set Main.text1.textBinding Other.text1.text"_s, u"no such variable or property"_s},
        {u"set Main.logicBuilder1.logicExpression when on and do speed = 1"_s, u"incomplete"_s},
        {u"set Main.logicBuilder1.logicExpression when(on) speed = 1"_s, u"Rules have the form"_s},
        {u"set Main.text1.text \"C:\\dir\""_s, u"not an escape"_s},
        {u"set Main.rectangle1.height 30"_s, u"Here, set \"size\""_s},
        {u"set Main.rectangle1.addedToScene true"_s, u"exists only on the device"_s},
        {u"copy Main.text1 rectangle1"_s, u"\"Main.rectangle1\" (Rectangle) has this name"_s},
        {u"copy Main.text1 text1"_s, u"not unique"_s},
        {u"copy Main.text1 t"_s, u"\"t\" is too short"_s},
        {u"add Text Main { text: a }"_s, u"Name the object"_s},
        {u"add Text Main title { text }"_s, u"{ property: value"_s},
        {u"sped = 5"_s, u"There is no property \"sped\""_s},
        {u"set Main.logicBuilder1.logicExpression wen on do speed = 1"_s, u"Rules have the form"_s},
    };
    for (const auto &[line, message] : refusals) {
        const EditPlan plan = script.plan(line);
        EXPECT_TRUE(plan.refusal.message.contains(message))
            << qPrintable(line + u'\n' + plan.refusal.message);
    }
    EXPECT_FALSE(stack().push(script.plan(u"set Main.text1.font 12.5pt \"Sans\""_s).command.release()));
    for (const auto &[property, form] : {std::pair(u"size"_s, u"a size such as 120 x 40"_s),
                                         std::pair(u"border"_s, u"a border such as 2 #C62828"_s)}) {
        EditPlan plan = script.plan(u"set Main.rectangle1.%1 none at all"_s.arg(property));
        EXPECT_FALSE(stack().push(plan.command.release()));
        EXPECT_TRUE(stack().errorString().contains(form)) << qPrintable(stack().errorString());
    }
}

TEST_F(EditScriptTest, ObjectsAreCopiedAndAddedWithTheirValues)
{
    EditScript script(*project);
    const QString before = text();
    const int steps = stack().count();
    const auto run = [&script](const char16_t *line) { return script.run(QString::fromUtf16(line)); };
    EXPECT_EQ(run(u"add Text Main title { text: \"a; b\"; position: 20, 8; xBinding: title.y + 1 }"),
              EditScript::Result::Done)
        << qPrintable(script.refusal().message);
    EXPECT_EQ(value(element("title"), "text"), u"a; b"_s);
    EXPECT_EQ(value(element("title"), "position"), u"x: 20; y: 8;"_s);
    EXPECT_EQ(run(u"add CheckButton Main check { checkedState: { title.text: a; title.opacity: 40 }; "
                  u"variable: on }"),
              EditScript::Result::Done)
        << qPrintable(script.refusal().message);
    EXPECT_EQ(script.plan(u"print Main.check.checkedState"_s).output.value(0),
              u"{ title.text: a; title.opacity: 40 }"_s);
    EXPECT_EQ(run(u"copy Main.title heading"), EditScript::Result::Done)
        << qPrintable(script.refusal().message);
    EXPECT_EQ(value(element("heading"), "xBinding"), u"<0306heading.y><0101+><02041>"_s);
    EXPECT_EQ(run(u"copy Main.title"), EditScript::Result::Done);
    EXPECT_EQ(value(element("title1"), "text"), u"a; b"_s);
    EXPECT_EQ(stack().count(), steps + 4);
    const QString added = text();
    EXPECT_EQ(run(u"add Text Main late { text: b; size: big }"), EditScript::Result::Failed);
    EXPECT_TRUE(script.refusal().message.contains(u"a size such as"_s));
    EXPECT_EQ(text(), added);
    stack().setIndex(steps);
    EXPECT_EQ(text(), before);
}

TEST_F(EditScriptTest, TheNameOfAVariableMeansItsValue)
{
    EditScript script(*project);
    for (const QString &line :
         {u"speed = 5"_s, u"set speed 6"_s, u"speed.value = 7"_s, u"set speed = 8 "_s}) {
        EXPECT_EQ(script.run(line), EditScript::Result::Done) << qPrintable(script.refusal().message);
        EXPECT_EQ(value(variable("speed"), "value"), line.trimmed().last(1));
    }
    EXPECT_TRUE(script.takeOutput().isEmpty());
    EXPECT_EQ(script.run(u"set Main.text1.prefix = Level "_s), EditScript::Result::Done);
    EXPECT_TRUE(script.takeOutput().value(0).contains(u"Put the value in quotes"_s));
    EXPECT_TRUE(script.invalidValues().isEmpty());
    EXPECT_EQ(script.run(u"speed = fast"_s), EditScript::Result::Done);
    EXPECT_TRUE(script.invalidValues().value(0).contains(u"\"fast\" is not a number"_s));
}

TEST_F(EditScriptTest, ChangesHaveTheNamesOfBeforeAndAfter)
{
    EditScript script(*project);
    ASSERT_EQ(script.run(u"set Main.text1.textBinding = concat(speed, rectangle1.x)"_s),
              EditScript::Result::Done);
    EXPECT_EQ(script.edits().constLast().changes.constFirst().readableAfter, QString());
    script.setReportsReadable(true);
    ASSERT_EQ(script.run(u"rename speed rate"_s), EditScript::Result::Done);
    QStringList lines;
    for (const EditScript::Change &change : script.edits().constLast().changes) {
        lines.append(u"%1: %2 -> %3"_s.arg(change.property, change.readableBefore, change.readableAfter));
    }
    EXPECT_TRUE(lines.contains(
        u"Main.text1.textBinding: concat(speed, rectangle1.x) -> concat(rate, rectangle1.x)"_s))
        << qPrintable(lines.join(u'\n'));
    EXPECT_TRUE(lines.contains(u"rate.id: speed -> rate"_s)) << qPrintable(lines.join(u'\n'));
}

} // namespace Halvane::Corvex::Designer::Test
