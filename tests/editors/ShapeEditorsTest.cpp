// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdNumberEdit.h"

#include "EditorFixture.h"
#include "Specimen.h"

#include <QAbstractButton>
#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ShapeEditorsTest : public EditorFixture
{
protected:
    static KdNumberEdit *line(const PropertyEditor *editor, int place)
    {
        return editor->findChildren<KdNumberEdit *>().at(place);
    }
    static void enter(KdNumberEdit *line, const QString &text)
    {
        line->setFocus(Qt::TabFocusReason);
        type(text);
    }
    static QAbstractButton *lock(const PropertyEditor *editor)
    {
        return editor->findChild<QAbstractButton *>();
    }
};

TEST_F(ShapeEditorsTest, EachFieldChangesItsNumber)
{
    DesignerObject *rectangle = element("rectangle1");
    struct Case
    {
        const char *id;
        int place;
        QString typed;
        QString expected;
    };
    const Case cases[] = {
        {"size", 0, u"2*60"_s, u"height: 60; width: 120;"_s},
        {"size", 1, u"/=2"_s, u"height: 30; width: 120;"_s},
        {"size", 1, u"40 x 30"_s, u"height: 30; width: 40;"_s},
        {"position", 1, u"+=7,5"_s, u"x: 0; y: 7.5;"_s},
        {"position", 0, u"10, 20"_s, u"x: 10; y: 20;"_s},
    };
    for (const Case &row : cases) {
        PropertyEditor *editor = edit({rectangle}, row.id);
        const QString before = text();
        enter(line(editor, row.place), row.typed);
        EXPECT_EQ(value(rectangle, row.id), row.expected) << qPrintable(row.typed + editor->errorString());
        ASSERT_TRUE(document->undo());
        EXPECT_EQ(text(), before);
        ASSERT_TRUE(document->redo());
    }
    PropertyEditor *editor = edit({rectangle}, "position");
    EXPECT_EQ(line(editor, 1)->accessibleName(), u"Position, y"_s);
    QTest::keyClick(line(editor, 1), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(value(rectangle, "position"), u"x: 10; y: 10;"_s);
    enter(line(editor, 0), u"left"_s);
    EXPECT_FALSE(editor->errorString().isEmpty());
    EXPECT_EQ(line(editor, 0)->text(), u"left"_s);
}

TEST_F(ShapeEditorsTest, OtherNumbersOfMixedValuesAreKept)
{
    DesignerObject *first = element("rectangle1");
    DesignerObject *second = element("rectangle2");
    ASSERT_TRUE(push(Commands::changeOf({{second->getProperty(u"size"_s), u"height: 8; width: 100;"_s}})));
    PropertyEditor *editor = edit({first, second}, "size");
    EXPECT_EQ(line(editor, 0)->text(), u"100"_s) << "common to both";
    EXPECT_EQ(line(editor, 1)->placeholderText(), u"Mixed"_s);
    enter(line(editor, 0), u"50"_s);
    EXPECT_EQ(value(first, "size"), u"height: 60; width: 50;"_s);
    EXPECT_EQ(value(second, "size"), u"height: 8; width: 50;"_s);
    // With the lock, each object keeps its own ratio.
    lock(editor)->click();
    enter(line(editor, 0), u"*=2"_s);
    EXPECT_EQ(value(first, "size"), u"height: 120; width: 100;"_s);
    EXPECT_EQ(value(second, "size"), u"height: 16; width: 100;"_s);
}

TEST_F(ShapeEditorsTest, TheLockIsThePropertyOfObjectsThatHaveIt)
{
    DesignerObject *image = element("image1");
    PropertyEditor *size = edit({image}, "size");
    EXPECT_TRUE(lock(size)->isChecked());
    enter(line(size, 0), u"50"_s);
    EXPECT_EQ(value(image, "size"), u"height: 50; width: 50;"_s);
    lock(size)->click();
    EXPECT_EQ(value(image, "keepRatio"), u"false"_s);
    enter(line(size, 0), u"80"_s);
    EXPECT_EQ(value(image, "size"), u"height: 50; width: 80;"_s);
    auto *box = field<QCheckBox>(edit({image}, "keepRatio"));
    EXPECT_EQ(box->text(), u"8 : 5"_s);
    box->click();
    EXPECT_TRUE(lock(size)->isChecked());
    ASSERT_TRUE(document->undo());
    EXPECT_FALSE(lock(size)->isChecked());
}

TEST_F(ShapeEditorsTest, SizesOfScreensHaveNoSteps)
{
    PropertyEditor *editor = edit({main}, "size");
    const QString before = text();
    EXPECT_FALSE(lock(editor));
    EXPECT_TRUE(line(editor, 0)->isReadOnly());
    QTest::keyClick(line(editor, 0), Qt::Key_Up);
    EXPECT_EQ(text(), before);
}

TEST_F(ShapeEditorsTest, RangesAreCheckedWhileTheUserTypes)
{
    DesignerObject *spinner = element("numberSpinner1");
    PropertyEditor *editor = edit({spinner}, "range");
    KdNumberEdit *minimum = line(editor, 0);
    minimum->setFocus(Qt::TabFocusReason);
    minimum->selectAll();
    QTest::keyClicks(minimum, u"10"_s);
    EXPECT_EQ(editor->errorString(), QString());
    QTest::keyClicks(minimum, u"0"_s);
    EXPECT_EQ(editor->errorString(), u"The minimum value must be less than the maximum value."_s);
    QTest::keyClick(minimum, Qt::Key_Backspace);
    EXPECT_EQ(editor->errorString(), QString());
    QTest::keyClick(minimum, Qt::Key_Return);
    EXPECT_EQ(value(spinner, "range"), u"maximum: 100; minimum: 10;"_s);
    enter(line(editor, 1), u"20 to 50"_s);
    EXPECT_EQ(value(spinner, "range"), u"maximum: 50; minimum: 20;"_s);
}

TEST_F(ShapeEditorsTest, ValueRangesKeepTheirLimits)
{
    DesignerObject *specimen = Examples::Specimen::create(u"sample"_s);
    ASSERT_TRUE(main->addListPropertyItem(main->elements(), specimen));
    PropertyEditor *editor = edit({specimen}, "sensorRange");
    enter(line(editor, 1), u"80 \u00B0C"_s);
    EXPECT_EQ(value(specimen, "sensorRange"), u"value1: 0, value2: 80, min: 0, max: 100"_s)
        << qPrintable(editor->errorString());
    enter(line(editor, 1), u"120"_s);
    EXPECT_EQ(editor->errorString(), u"The values must be within their limits."_s);
    EXPECT_EQ(line(editor, 1)->text(), u"120"_s);
}

} // namespace Halvane::Corvex::Designer::Test
