// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdLineEdit.h"

#include "EditorFixture.h"

#include <QToolButton>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class PropertyPanelTest : public EditorFixture
{ };

TEST_F(PropertyPanelTest, AnEntryIsOneStepOfTheHistoryAndCanBeUndone)
{
    DesignerObject *rectangle = element("rectangle1");
    PropertyEditor *editor = edit({rectangle}, "size");
    const QString before = text();
    type(u"40 x 30"_s);
    EXPECT_EQ(value(rectangle, "size"), u"height: 30; width: 40;"_s);
    EXPECT_FALSE(editor->hasEntry());
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
    EXPECT_EQ(editor->row().value, value(rectangle, "size"));
}

TEST_F(PropertyPanelTest, ARefusedEntryStaysWithItsReasonUntilItIsRestored)
{
    PropertyEditor *editor = edit({element("rectangle1")}, "size");
    auto *line = field<KdLineEdit>(editor);
    const QString before = line->text();
    const QString saved = text();
    type(u"wide"_s);
    EXPECT_EQ(text(), saved);
    EXPECT_EQ(line->text(), u"wide"_s);
    EXPECT_FALSE(editor->errorString().isEmpty());
    EXPECT_EQ(line->accessibleDescription(), editor->errorString());
    // A change from elsewhere does not remove it.
    ASSERT_TRUE(push(
        Commands::changeOf({{element("rectangle1")->getProperty(u"size"_s), u"height: 8; width: 7;"_s}})));
    EXPECT_EQ(line->text(), u"wide"_s);
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_EQ(line->text(), u"7"_s);
    EXPECT_NE(line->text(), before);
    EXPECT_TRUE(editor->errorString().isEmpty());
}

TEST_F(PropertyPanelTest, SeveralObjectsShowMixedAndChangeTogether)
{
    DesignerObject *first = element("rectangle1");
    DesignerObject *second = element("rectangle2");
    ASSERT_TRUE(push(Commands::changeOf({{second->getProperty(u"radius"_s), u"9"_s}})));
    PropertyEditor *editor = edit({first, second}, "size");
    type(u"5 x 6"_s, Qt::Key_Tab);
    EXPECT_EQ(value(first, "size"), u"height: 6; width: 5;"_s);
    EXPECT_EQ(value(second, "size"), u"height: 6; width: 5;"_s);
    EXPECT_EQ(value(second, "radius"), u"9"_s) << "a row that was not touched";
    ASSERT_TRUE(push(Commands::changeOf({{second->getProperty(u"size"_s), u"height: 1; width: 1;"_s}})));
    EXPECT_TRUE(editor->row().isMixed);
    EXPECT_EQ(field<KdLineEdit>(editor)->text(), QString());
    EXPECT_EQ(field<KdLineEdit>(editor)->placeholderText(), u"Mixed"_s);
}

TEST_F(PropertyPanelTest, PartsOfMixedValuesFollowTheHistory)
{
    DesignerObject *first = element("rectangle1");
    DesignerObject *second = element("rectangle2");
    ASSERT_TRUE(push(Commands::changeOf({{first->getProperty(u"size"_s), u"height: 20; width: 10;"_s},
                                         {second->getProperty(u"size"_s), u"height: 30; width: 10;"_s}})));
    const auto *width = field<KdLineEdit>(edit({first, second}, "size"));
    type(u"+=5"_s);
    EXPECT_EQ(width->text(), u"15"_s);
    EXPECT_FALSE(width->hasEntry());
    ASSERT_TRUE(document->undo());
    QApplication::processEvents();
    EXPECT_EQ(width->text(), u"10"_s);
}

TEST_F(PropertyPanelTest, AnEntryBelongsToTheObjectsItWasMadeFor)
{
    edit({element("rectangle1")}, "size");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"3 x 4"_s);
    document->select({element("rectangle2")}); // without Enter
    EXPECT_EQ(value(element("rectangle1"), "size"), u"height: 4; width: 3;"_s);
    EXPECT_NE(value(element("rectangle2"), "size"), u"height: 4; width: 3;"_s);
}

TEST_F(PropertyPanelTest, ResetRestoresTheDefault)
{
    DesignerObject *rectangle = element("rectangle1");
    const QString initial = value(rectangle, "size");
    edit({rectangle}, "size");
    type(u"40 x 30"_s);
    PropertyEditor *editor = panel->reveal(u"size"_s);
    auto *reset = editor->parentWidget()->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_TRUE(reset && reset->isVisible());
    reset->click();
    EXPECT_EQ(value(rectangle, "size"), initial);
    EXPECT_FALSE(reset->isVisible());
}

TEST_F(PropertyPanelTest, TheFilterAndHiddenRowsDecideWhatIsShown)
{
    document->select({element("rectangle1")});
    panel->setFilter(u"opac"_s);
    EXPECT_TRUE(panel->reveal(u"opacity"_s));
    EXPECT_FALSE(panel->reveal(u"size"_s));
    document->select({element("text1")}); // the filter remains
    EXPECT_FALSE(panel->reveal(u"size"_s));
    panel->setFilter({});
    EXPECT_TRUE(panel->reveal(u"size"_s));
    element("text1")->getProperty(u"size"_s)->setEditorParameter(u"visible"_s, false);
    EXPECT_FALSE(panel->reveal(u"size"_s));
}

TEST_F(PropertyPanelTest, OnlyRowsInViewAreCreated)
{
    panel->resize(360, 120);
    document->select({element("rectangle1")});
    const qsizetype few = panel->findChildren<PropertyEditor *>().size();
    EXPECT_LT(few, panel->sheet().rowCount() / 2);
    EXPECT_TRUE(panel->reveal(panel->sheet().row(panel->sheet().rowCount() - 1).id));
    EXPECT_GT(panel->findChildren<PropertyEditor *>().size(), few);
}

} // namespace Halvane::Corvex::Designer::Test
