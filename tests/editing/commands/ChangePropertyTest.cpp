// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/values/records/IdentifierInfo.h"

#include "CommandFixture.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ChangePropertyTest : public CommandFixture
{
protected:
    static QString named(const DesignerObject *object, const QString &name)
    {
        IdentifierInfo info = object->getIdInfo();
        info.setName(name);
        return info.toString();
    }
    static QString linkTo(const QString &name)
    {
        return u"filterType: VisualElement; objectId: %1; scopeType: Screen;"_s.arg(name);
    }
};

TEST_F(ChangePropertyTest, TextsAndValues)
{
    auto *position = push(new ChangeProperty(property(element("text1"), "position"), u"x: 3; y: 4;"_s, true));
    EXPECT_EQ(position->text(), u"Change Position"_s);
    EXPECT_EQ(position->selectedItems(), QList<DesignerObject *>{element("text1")});
    EXPECT_EQ(value(element("text1"), "position"), u"x: 3; y: 4;"_s);
    EXPECT_EQ(ChangeProperty(project->defaultScreen(), {}, false).text(), u"Change Pumps Default Screen"_s);
    stack().undo();
    EXPECT_EQ(value(element("text1"), "position"), u"x: 0; y: 0;"_s);

    EXPECT_FALSE(ChangeProperty(nullptr, u"1"_s, false).isValid());
    ChangeProperty lost(property(element("text1"), "text"), u"new"_s, false);
    delete element("text1");
    EXPECT_FALSE(lost.isValid());
    lost.redo();
    EXPECT_FALSE(lost.isDone());
}

TEST_F(ChangePropertyTest, AQuietRefusalChangesNothingElse)
{
    // If the object does not get the name, no reference may change.
    ASSERT_TRUE(set(element("button1"), "visualElement", linkTo(u"rectangle1"_s)));
    const QString before = text();
    EXPECT_FALSE(stack().push(new ChangeProperty(element("rectangle1")->idProperty(),
                                                 named(element("rectangle1"), u"a"_s + QChar(1)), false)));
    EXPECT_FALSE(stack().errorString().isEmpty());
    EXPECT_EQ(text(), before);
}

TEST_F(ChangePropertyTest, ReferencesFollowANewNameAndListsStaySorted)
{
    DesignerObject *button = element("button1");
    ASSERT_TRUE(set(button, "visualElement", linkTo(u"rectangle1"_s)));
    ASSERT_TRUE(set(button, "normalState", u"name: rectangle1;"_s));
    ASSERT_TRUE(set(button, "pressedState", u"name: rectangle1;"_s));
    addTo(main, "PwmOutput");
    const QString before = text();

    push(new ChangeProperty(element("rectangle1")->idProperty(), named(element("rectangle1"), u"tank"_s),
                            false));
    EXPECT_EQ(value(button, "visualElement"), linkTo(u"tank"_s));
    EXPECT_EQ(value(button, "normalState"), u"name: tank;"_s);
    EXPECT_EQ(value(button, "pressedState"), u"name: tank;"_s);
    EXPECT_TRUE(property(button, "visualElement")->isValid());

    push(new ChangeProperty(element("pwmOutput1")->idProperty(),
                            named(element("pwmOutput1"), u"pwmOutput9"_s), false));
    EXPECT_LT(main->elements()->getListItemIndex(u"pwmOutput2"_s),
              main->elements()->getListItemIndex(u"pwmOutput9"_s));
    const QString after = text();
    stack().setIndex(0);
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(property(button, "visualElement")->isValid());
    stack().setIndex(2);
    EXPECT_EQ(text(), after);
}

TEST_F(ChangePropertyTest, ANameThatTheRulesRefuseIsNotSet)
{
    ASSERT_TRUE(set(element("button1"), "visualElement", linkTo(u"rectangle2"_s)));
    const QString before = text();
    const struct
    {
        DesignerObject *object;
        QStringList names;
    } cases[] = {
        {element("rectangle1"),
         {u"rectangle2"_s, u"1rect"_s, u"while"_s, u""_s, u"Main"_s, u"speed"_s, u"a; name: b"_s}},
        {main, {u"Other"_s, u"rectangle1"_s, u"on"_s}},
        {variable("speed"), {u"rectangle1"_s, u"on"_s, u"Main"_s, u"sqrt"_s}},
        {object(u"pump.png"_s), {u"../zz"_s, u"pump"_s, u"aux.png"_s}},
        {main->filters()->getListItem(u"filter1"_s), {u"rectangle1"_s}},
        {project.get(), {u"a/b"_s, u""_s}},
    };
    for (const auto &[renamed, names] : cases) {
        for (const QString &name : names) {
            auto *command = new ChangeProperty(renamed->idProperty(), named(renamed, name), false);
            EXPECT_FALSE(command->isValid()) << qPrintable(name);
            EXPECT_FALSE(command->errorString().isEmpty()) << qPrintable(name);
            EXPECT_FALSE(stack().push(command)) << qPrintable(name);
        }
    }
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(element("rectangle1")->idProperty()->isValid()) << "a trial leaves no mark";

    // Within a composite a name may become free.
    auto *exchange = new UndoCommand;
    const auto rename = [&](const char *from, const QString &to) {
        new ChangeProperty(element(from)->idProperty(), named(element(from), to), false, exchange);
    };
    rename("rectangle1", u"spare"_s);
    rename("rectangle2", u"rectangle1"_s);
    EXPECT_TRUE(stack().push(exchange)) << qPrintable(stack().errorString());
    EXPECT_EQ(value(element("button1"), "visualElement"), linkTo(u"rectangle1"_s));
    stack().undo();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(main->uniqueElementName(u"rectangle"_s), u"rectangle3"_s);
    ASSERT_TRUE(element("rectangle1")->setIdName(u"rectangle0"_s));
    ASSERT_TRUE(element("rectangle0")->setIdName(u"tank"_s));
    EXPECT_EQ(main->uniqueElementName(u"rectangle"_s), u"rectangle1"_s) << "numbers begin at 1";
}

TEST_F(ChangePropertyTest, StatesFollowTheLinkedElement)
{
    DesignerObject *spinner = element("numberSpinner1");
    ASSERT_TRUE(set(spinner, "incVisualElement", linkTo(u"rectangle1"_s)));
    ASSERT_TRUE(set(spinner, "incNormalState", u"name: rectangle1; | name: nowhere;"_s));
    ASSERT_TRUE(set(spinner, "decNormalState", u"name: rectangle1;"_s));
    push(new ChangeProperty(property(spinner, "incVisualElement"), linkTo(u"text1"_s), false));
    EXPECT_EQ(value(spinner, "incNormalState"), u"name: text1;"_s);
    EXPECT_EQ(value(spinner, "decNormalState"), u"name: rectangle1;"_s);
    stack().undo();
    EXPECT_EQ(value(spinner, "incNormalState"), u"name: rectangle1; | name: nowhere;"_s);
}

TEST_F(ChangePropertyTest, AnImageWithAMissingFileIsNotShown)
{
    const SharedProperty source = property(element("image1"), "source");
    const QString link = u"filterType: ImageResource; objectId: %1; scopeType: Project;"_s;
    EXPECT_TRUE(ChangeProperty(source, link.arg(u"pump.png"_s), false).isValid());
    EXPECT_FALSE(ChangeProperty(source, link.arg(u"gone.png"_s), false).isValid());
    EXPECT_FALSE(ChangeProperty(source, u"objectId: gone.png;"_s, false).isValid());
    const SharedProperty state = property(element("button1"), "normalState");
    EXPECT_FALSE(ChangeProperty(state,
                                u"name: image1; propertyValues: propName%3A source%3B propValue%3A "
                                "objectId%253A gone.png%253B filterType%253A ImageResource%253B%3B;"_s,
                                false)
                     .isValid());
}

TEST_F(ChangePropertyTest, CommandsOfOneCompositeBuildOnEachOther)
{
    ASSERT_TRUE(set(element("propertyTrigger1"), "actionScheduler", u"action1, action2"_s));
    addTo(main, "Action");
    const QString before = text();
    auto *both = new UndoCommand;
    for (const char *name : {"action1", "action2"}) {
        new ChangeProperty(element(name)->idProperty(),
                           named(element(name), u"x_"_s + QLatin1StringView(name)), false, both);
    }
    stack().push(both);
    EXPECT_EQ(value(element("propertyTrigger1"), "actionScheduler"), u"x_action1, x_action2"_s);
    stack().undo();
    EXPECT_EQ(text(), before);
}

} // namespace Halvane::Corvex::Designer::Test
