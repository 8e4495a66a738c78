// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/Arrangement.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/text/ValueConversion.h"

#include "CommandFixture.h"

namespace Halvane::Corvex::Designer::Test {

using namespace Qt::StringLiterals;

namespace {

using Line = Arrangement::Line;
using Level = Arrangement::Level;
using Ability = Arrangement::Ability;

class ArrangementTest : public CommandFixture
{
protected:
    void SetUp() override
    {
        CommandFixture::SetUp();
        place("rectangle1", {10, 20}, {100, 50});
        place("rectangle2", {200, 33}, {40, 10});
        place("text1", {120, 90}, {30, 31});
    }
    void place(const char *name, QPointF position, QSizeF size)
    {
        set(element(name), "position", ValueConversion::toString(position));
        set(element(name), "size", ValueConversion::toString(size));
    }
    QList<DesignerObject *> all() const
    {
        return {element("rectangle1"), element("rectangle2"), element("text1")};
    }
    //! Pushes one command, which an undo reverts completely.
    void run(PlannedCommand planned)
    {
        ASSERT_TRUE(planned) << qPrintable(planned.reason);
        const QString before = text();
        const int index = stack().index();
        ASSERT_TRUE(stack().push(planned.command.release()));
        EXPECT_EQ(stack().index(), index + 1);
        const QString after = text();
        stack().undo();
        EXPECT_EQ(text(), before);
        stack().redo();
        EXPECT_EQ(text(), after);
    }
    QRectF boundsOf(const char *name) const { return Arrangement::bounds({element(name)}); }
    QStringList order() const
    {
        QStringList names = main->elements()->listItemNames();
        names.removeIf([this](const QString &name) {
            return !main->getElement(name)->isKindOfClass(u"VisualElement"_s);
        });
        return names;
    }
};

} // namespace

TEST_F(ArrangementTest, AlignsToTheBoundsOfTheSelection)
{
    const QRectF bounds = Arrangement::bounds(all());
    EXPECT_EQ(bounds, QRectF(10, 20, 230, 101));
    const struct
    {
        Line line;
        double (*of)(const QRectF &rect);
    } rows[] = {
        {Line::Left, [](const QRectF &rect) { return rect.left(); }},
        {Line::Right, [](const QRectF &rect) { return rect.right(); }},
        {Line::Center, [](const QRectF &rect) { return rect.center().x(); }},
        {Line::Top, [](const QRectF &rect) { return rect.top(); }},
        {Line::Bottom, [](const QRectF &rect) { return rect.bottom(); }},
        {Line::Middle, [](const QRectF &rect) { return rect.center().y(); }},
    };
    for (const auto &[line, of] : rows) {
        run(Arrangement::alignment(all(), line));
        for (const char *name : {"rectangle1", "rectangle2", "text1"}) {
            EXPECT_NEAR(of(boundsOf(name)), of(bounds), 1) << name << int(line);
            EXPECT_EQ(boundsOf(name).topLeft().toPoint(), boundsOf(name).topLeft()) << "whole pixels";
        }
        const PlannedCommand again = Arrangement::alignment(all(), line);
        EXPECT_FALSE(again);
        EXPECT_EQ(again.reason, QString());
        stack().undo();
    }
    // One element is aligned to the screen.
    const QSizeF screen = ValueConversion::toSize(main->size()->valueString());
    run(Arrangement::alignment({element("text1")}, Line::Right));
    EXPECT_EQ(boundsOf("text1").right(), screen.width());
}

TEST_F(ArrangementTest, SeesRotatedElementsAndGroupsAsTheScreenShowsThem)
{
    set(element("rectangle1"), "rotation", u"90"_s);
    EXPECT_EQ(boundsOf("rectangle1"), QRectF(35, -5, 50, 100));
    run(Arrangement::grouping({element("rectangle1"), element("text1")}));
    EXPECT_EQ(stack().count(), 1);
    const DesignerObject *group = element("text1")->ownerObject();
    EXPECT_EQ(Arrangement::bounds({const_cast<DesignerObject *>(group)}), QRectF(35, -5, 115, 126));
    run(Arrangement::alignment({const_cast<DesignerObject *>(group), element("rectangle2")}, Line::Right));
    EXPECT_EQ(boundsOf("text1").right(), 240);

    // A member of a rotated group moves along the screen, and the others stay.
    stack().push(Commands::changeOf({{group->getProperty(u"rotation"), u"30"_s}}).command.release());
    const QRectF rest = boundsOf("rectangle1");
    const QRectF before = boundsOf("text1");
    run(Arrangement::alignment({element("text1")}, Line::Top));
    EXPECT_NEAR(boundsOf("text1").top(), 0, 0.01);
    EXPECT_NEAR(boundsOf("text1").left(), before.left(), 0.01);
    EXPECT_NEAR(boundsOf("rectangle1").left(), rest.left(), 0.01);
    EXPECT_NEAR(boundsOf("rectangle1").top(), rest.top(), 0.01);
}

TEST_F(ArrangementTest, MakesGapsAndSizesEqual)
{
    run(Arrangement::distribution(all(), Qt::Horizontal));
    EXPECT_EQ(boundsOf("rectangle1").left(), 10);
    EXPECT_EQ(boundsOf("text1").left(), 140);
    EXPECT_EQ(boundsOf("rectangle2").left(), 200);
    run(Arrangement::sameSize(all(), Qt::Horizontal));
    EXPECT_EQ(boundsOf("text1").size(), QSizeF(100, 31));
    run(Arrangement::sameSize(all(), Qt::Horizontal | Qt::Vertical));
    EXPECT_EQ(boundsOf("rectangle2").size(), QSizeF(100, 50));
    run(Arrangement::grouping({element("rectangle1"), element("text1")}));
    PlannedCommand planned = Arrangement::sameSize({element("rectangle2"), element("group1")}, Qt::Vertical);
    EXPECT_FALSE(planned);
    place("rectangle2", {0, 0}, {7, 8});
    place("image1", {0, 0}, {9, 9});
    planned =
        Arrangement::sameSize({element("rectangle2"), element("group1"), element("image1")}, Qt::Vertical);
    EXPECT_EQ(planned.notes, QStringList{u"\"group1\" has no size of its own and keeps it."_s});
}

TEST_F(ArrangementTest, RestacksWithoutChangingTheOrderOfTheSelection)
{
    for (int i = 0; i < 3; ++i) {
        addTo(main, "Rectangle");
    }
    const QStringList before = order();
    ASSERT_EQ(before.size(), 7);
    const QList<DesignerObject *> moved{element(before.at(4).toLatin1().constData()),
                                        element(before.at(1).toLatin1().constData()),
                                        element(before.at(2).toLatin1().constData())};
    const struct
    {
        Level level;
        QList<int> places;
    } rows[] = {
        {Level::Raise, {0, 3, 1, 2, 5, 4, 6}},
        {Level::Lower, {1, 2, 0, 4, 3, 5, 6}},
        {Level::Front, {0, 3, 5, 6, 1, 2, 4}},
        {Level::Back, {1, 2, 4, 0, 3, 5, 6}},
    };
    for (const auto &[level, places] : rows) {
        QStringList expected;
        for (const int place : places) {
            expected.append(before.at(place));
        }
        run(Arrangement::restacking(moved, level));
        EXPECT_EQ(order(), expected) << int(level);
        const bool isAtEnd = level == Level::Front || level == Level::Back;
        EXPECT_EQ(bool(Arrangement::restacking(moved, level)), !isAtEnd);
        const Arrangement::Abilities abilities = Arrangement::abilities(moved);
        EXPECT_EQ(abilities.testFlag(Ability::Raise), level != Level::Front);
        EXPECT_EQ(abilities.testFlag(Ability::Lower), level != Level::Back);
        stack().undo();
    }
    run(Arrangement::flippedOrder(moved));
    EXPECT_EQ(order().at(1), before.at(4));
    EXPECT_EQ(order().at(2), before.at(2));
}

TEST_F(ArrangementTest, GroupsAndUngroups)
{
    const QString before = text();
    run(Arrangement::grouping({element("rectangle1"), element("text1")}));
    run(Arrangement::grouping({element("rectangle2"), element("image1"), element("pwmOutput1")}));
    const QList<DesignerObject *> groups{element("group1"), element("group2")};
    EXPECT_TRUE(Arrangement::abilities(groups).testFlag(Ability::Ungroup));
    EXPECT_FALSE(Arrangement::abilities({element("text1")}).testFlag(Ability::Ungroup));
    EXPECT_NE(Arrangement::grouping({element("text1"), element("image1")}).reason, QString());
    const QStringList between = order();
    run(Arrangement::ungrouping(groups));
    EXPECT_FALSE(main->hasElement(u"group1"_s));
    EXPECT_EQ(order().size(), between.size() + 2);
    EXPECT_EQ(boundsOf("text1"), QRectF(120, 90, 30, 31));
    stack().setIndex(0);
    EXPECT_EQ(text(), before);
    EXPECT_EQ(Arrangement::abilities({element("pwmOutput1"), main, variable("speed")}),
              Arrangement::Abilities());
}

} // namespace Halvane::Corvex::Designer::Test
