// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemFix.h"
#include "corvex/checks/ProblemList.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/values/expressions/UpdateObjectList.h"

#include "editing/commands/CommandFixture.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ProblemFixTest : public CommandFixture
{
protected:
    void SetUp() override
    {
        HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA));
        CommandFixture::SetUp();
        list.emplace(*project, *HardwareConfigurations::instance()->installed());
    }

    //! Sets a value that validation may refuse.
    void force(DesignerObject *owner, const char *id, const QString &text)
    {
        owner->setDisableValidation(true);
        EXPECT_TRUE(owner->changePropertyValue(property(owner, id), text)) << id << ' ' << qPrintable(text);
        owner->setDisableValidation(false);
        list->update();
    }
    static QString id(const char *name)
    {
        return IdentifierInfo(QString::fromLatin1(name), {}, {}).toString();
    }
    static QString link(const char *name)
    {
        return u"filterType: ; objectId: %1; scopeType: ;"_s.arg(QLatin1StringView(name));
    }
    QStringList messages() const
    {
        QStringList all;
        for (const Problem &problem : list->problems()) {
            all.append(problem.path() + u'.' + problem.property + u": "_s + problem.message);
        }
        all.sort();
        return all;
    }
    //! Null if nothing is found. Without an object, the problem may be anywhere.
    const Problem *find(ProblemCode code, const DesignerObject *object = nullptr, const char *id = "") const
    {
        for (qsizetype row = 0; row < list->count(); ++row) {
            const Problem &problem = list->at(row);
            if (problem.code == code
                && (!object || (problem.source == object && problem.property == QLatin1StringView(id)))) {
                return &problem;
            }
        }
        return nullptr;
    }
    static QStringList textsOf(const QList<ProblemFix> &fixes)
    {
        QStringList texts;
        for (const ProblemFix &fix : fixes) {
            texts.append(fix.text);
        }
        return texts;
    }
    void applyAndUndo(const ProblemFix &fix, const Problem &problem);

    std::optional<ProblemList> list;
};

//! The fix solves the problem and causes no other; undo restores everything.
void ProblemFixTest::applyAndUndo(const ProblemFix &fix, const Problem &problem)
{
    SCOPED_TRACE(qPrintable(fix.text));
    const QStringList before = messages();
    const QString saved = text();
    std::unique_ptr<UndoCommand> command = fix.makeCommand();
    ASSERT_TRUE(command);
    ASSERT_TRUE(stack().push(command.release())) << qPrintable(stack().errorString());
    list->update();
    EXPECT_FALSE(find(problem.code, problem.source, problem.property.toLatin1().constData()));
    for (const QString &message : messages()) {
        EXPECT_TRUE(before.contains(message)) << qPrintable(message);
    }
    EXPECT_FALSE(fix.makeCommand()) << "the problem is solved";
    stack().undo();
    list->update();
    EXPECT_EQ(messages(), before);
    EXPECT_EQ(text(), saved);
}

TEST_F(ProblemFixTest, SolvesTheProblemAndCanBeUndone)
{
    DesignerObject *rectangle = element("rectangle1");
    DesignerObject *group = make(u"GroupElement"_s, u"group1"_s);
    ASSERT_TRUE(main->addListPropertyItem(main->elements(), group));
    add(property(group, "elements"), "Rectangle", "member1");
    add(property(group, "elements"), "Rectangle", "member2");
    add(project->variables(), "BACnetObject", "bacnet1");
    add(project->variables(), "BACnetObject", "bacnet2");
    add(project->variables(), "BACnetDevice", "device1");
    for (const char *name : {"bacnet1", "bacnet2"}) {
        force(variable(name), "bacnetObjName", u"name"_s);
    }
    force(variable("bacnet1"), "objectID", u"5,1"_s);
    force(group, "indexes", u"member1 | member2"_s);

    UpdateObjectInfo update;
    update.setName(u"rectangle1"_s);
    update.setPropValueMap({{u"opacity"_s, u"500"_s}});
    UpdateObjectList states;
    states.append(update);
    GeneralDataList misspelled;
    misspelled << GeneralDataInfo(GeneralDataInfo::VariableValue, GeneralDataInfo::NumberData, u"sped"_s);

    force(project->configurationObject(), "alarmOutputs", u"OUTPUT, OUTPUT, OUTPUT"_s);
    DesignerObject *alarm = addTo(main, "AlarmOutput");
    force(addTo(main, "AlarmOutput"), "channel", u"2"_s);

    struct Case
    {
        DesignerObject *object;
        const char *property;
        QString value;
        ProblemCode code;
        QStringList fixes;
    };
    using enum ProblemCode;
    const Case cases[] = {
        {rectangle, "id", id("1 rect"), NameFormat, {u"Rename to \"rectangle_1_rect\""_s}},
        {rectangle,
         "id",
         IdentifierInfo(QString(300, u'a'), {}, {}).toString(),
         NameLength,
         {u"Rename to \"%1\""_s.arg(QString(240, u'a'))}},
        {rectangle, "id", id("while"), NameReserved, {u"Rename to \"while1\""_s}},
        {rectangle, "id", id("speed"), NameTaken, {u"Rename to \"speed1\""_s}},
        {element("rectangle2"), "id", id("rectangle1"), NameTaken, {u"Rename to \"rectangle2\""_s}},
        {rectangle, "opacity", u"500"_s, AppearanceRange, {u"Set to 100, the largest value"_s}},
        {rectangle, "opacity", u"-5"_s, AppearanceRange, {u"Set to 10, the smallest value"_s}},
        {variable("device1"), "netNumber", u"-1"_s, ValueRange, {u"Set to 0, the smallest value"_s}},
        {project->configurationObject(),
         "displayBrightness",
         u"500"_s,
         ValueInvalid,
         {u"Reset to the default"_s}},
        {variable("speed"), "value", u"fast"_s, NumberUnreadable, {u"Reset to the default"_s}},
        {alarm, "channel", u"2"_s, ChannelShared, {u"Assign channel 1"_s}},
        {alarm, "channel", u"7"_s, ChannelMissing, {u"Assign channel 1"_s}},
        {group, "indexes", u"member1"_s, GroupOrder, {u"List all members"_s}},
        {project->configurationObject(),
         "enablePassword",
         u"true"_s,
         PasswordEmpty,
         {u"Disable the password"_s}},
        {variable("bacnet2"), "objectID", u"5,1"_s, BACnetTaken, {u"Set the identifier to \"5,0\""_s}},
        {element("button1"),
         "visualElement",
         link("rectagle1"),
         LinkTarget,
         {u"Set the link to \"rectangle1\""_s}},
        {element("screenLoader1"), "screen", link("Othr"), LinkTarget, {u"Set the link to \"Other\""_s}},
        {project.get(),
         "defaultScreen",
         link("Man"),
         ReferenceMissing,
         {u"Set the link to \"Main\""_s, u"Unset the link"_s}},
        {element("button1"),
         "pressedState",
         states.toString().replace(u"500"_s, u"50"_s).replace(u"rectangle1"_s, u"rectangle7"_s),
         ReferenceElement,
         {u"Replace \"rectangle7\" with \"rectangle1\""_s}},
        {element("button1"),
         "pressedState",
         states.toString(),
         StateRange,
         {u"Set \"opacity\" of \"rectangle1\" to 100, the largest value"_s}},
        {element("button1"),
         "pressed",
         u"<0306rectangle1.opacity><020432><0306rectangle1.x><020432>"_s,
         ExpressionPercent,
         {u"Replace \"50\" with \"0.5\""_s}},
        {rectangle,
         "xBinding",
         misspelled.toString(),
         ReferenceMissing,
         {u"Replace \"sped\" with \"speed\""_s}},
    };
    for (const auto &[object, id, value, code, texts] : cases) {
        SCOPED_TRACE(testing::Message()
                     << ProblemKind::of(code).word << ' ' << id << ' ' << qPrintable(value));
        const QString good = property(object, id)->valueString();
        force(object, id, value);
        const Problem *problem = find(code, object, code == PasswordEmpty ? "password" : id);
        ASSERT_TRUE(problem) << qPrintable(messages().join(u'\n'));
        const Problem solved = *problem;
        const QList<ProblemFix> fixes = ProblemFix::of(solved);
        EXPECT_EQ(textsOf(fixes), texts);
        for (const ProblemFix &fix : fixes) {
            ASSERT_NO_FATAL_FAILURE(applyAndUndo(fix, solved));
        }
        force(object, id, good);
    }
}

TEST_F(ProblemFixTest, DeletesALogThatNothingFeeds)
{
    list->update();
    const Problem *problem = find(ProblemCode::LogUnfed);
    ASSERT_TRUE(problem);
    const Problem solved = *problem;
    const QList<ProblemFix> fixes = ProblemFix::of(solved);
    ASSERT_EQ(textsOf(fixes), QStringList{u"Delete the log"_s});
    applyAndUndo(fixes.first(), solved);
}

//! Two elements with the same name: references mean the other one, and the group still knows its member.
TEST_F(ProblemFixTest, RenamesANamesakeAlone)
{
    DesignerObject *group = make(u"GroupElement"_s, u"group1"_s);
    ASSERT_TRUE(main->addListPropertyItem(main->elements(), group));
    for (const char *name : {"member1", "member2"}) {
        add(property(group, "elements"), "Rectangle", name);
    }
    force(group, "indexes", u"member1 | member2"_s);
    set(element("button1"), "visualElement", link("rectangle1"));
    force(element("member1"), "id", id("rectangle1"));
    force(group, "indexes", u"rectangle1 | member2"_s);
    for (const Problem &problem : list->problems()) {
        if (problem.code == ProblemCode::NameTaken && problem.source->ownerObject() == group) {
            stack().push(ProblemFix::of(problem).value(0).makeCommand().release());
            break;
        }
    }
    list->update();
    EXPECT_FALSE(find(ProblemCode::NameTaken));
    EXPECT_FALSE(find(ProblemCode::GroupOrder));
    EXPECT_TRUE(value(element("button1"), "visualElement").contains(u"rectangle1"_s));
}

} // namespace Halvane::Corvex::Designer::Test
