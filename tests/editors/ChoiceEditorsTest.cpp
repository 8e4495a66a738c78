// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdComboBox.h"
#include "corvex/widgets/KdNumberEdit.h"

#include "EditorFixture.h"
#include "Specimen.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLabel>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ChoiceEditorsTest : public EditorFixture
{
protected:
    QList<DesignerObject *> specimens()
    {
        QList<DesignerObject *> made;
        for (const QString &name : {u"one"_s, u"two"_s}) {
            made.append(Examples::Specimen::create(name));
            EXPECT_TRUE(main->addListPropertyItem(main->elements(), made.constLast()));
        }
        return made;
    }
    static QCheckBox *box(const PropertyEditor *editor, const QString &words)
    {
        for (QCheckBox *known : editor->findChildren<QCheckBox *>()) {
            if (known->text() == words) {
                return known;
            }
        }
        return nullptr;
    }
};

TEST_F(ChoiceEditorsTest, AMixedBoxIsTurnedOnForAll)
{
    DesignerObject *first = element("rectangle1");
    DesignerObject *second = element("rectangle2");
    auto *box = field<QCheckBox>(edit({first, second}, "visible"));
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(value(first, "visible") + value(second, "visible"), u"falsefalse"_s);
    ASSERT_TRUE(push(Commands::changeOf({{first->getProperty(u"visible"_s), u"true"_s}})));
    EXPECT_EQ(box->checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(box->text(), u"Mixed"_s);
    const QString before = text();
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(value(first, "visible") + value(second, "visible"), u"truetrue"_s);
    EXPECT_FALSE(box->isTristate());
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
}

TEST_F(ChoiceEditorsTest, EnumerationsShowWords)
{
    DesignerObject *label = element("text1");
    auto *combo = field<KdComboBox>(edit({label}, "horizontalAlignment"));
    QStringList words;
    for (int item = 0; item < combo->count(); ++item) {
        words.append(combo->itemText(item));
    }
    EXPECT_EQ(words, (QStringList{u"Left"_s, u"Center"_s, u"Right"_s}));
    EXPECT_EQ(combo->currentText(), u"Left"_s);
    const QString before = text();
    QTest::keyClick(combo, Qt::Key_Down);
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(value(label, "horizontalAlignment"), u"AlignRight"_s);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before) << "both keys are one step";
    combo->showPopup();
    QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_EQ(value(label, "horizontalAlignment"), u"AlignHCenter"_s);
    EXPECT_EQ(field<KdComboBox>(edit({variable("history")}, "behavior"))->currentText(),
              u"Overwrite oldest"_s);
}

TEST_F(ChoiceEditorsTest, OriginsAreClickedOrReachedWithArrows)
{
    DesignerObject *rectangle = element("rectangle1");
    PropertyEditor *editor = edit({rectangle}, "transformOrigin");
    auto *picture = editor->focusProxy();
    QTest::mouseClick(picture, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(value(rectangle, "transformOrigin"), u"TopLeft"_s);
    QTest::mouseClick(picture, Qt::LeftButton, {}, QPoint(picture->width() - 8, picture->height() - 8));
    EXPECT_EQ(value(rectangle, "transformOrigin"), u"BottomRight"_s);
    const QString before = text();
    QTest::keyClick(picture, Qt::Key_Left);
    QTest::keyClick(picture, Qt::Key_Up);
    QTest::keyClick(picture, Qt::Key_Up);
    QTest::keyClick(picture, Qt::Key_Up);
    EXPECT_EQ(value(rectangle, "transformOrigin"), u"Top"_s);
    EXPECT_EQ(field<QLabel>(editor)->text(), u"Top"_s);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
    ASSERT_TRUE(push(Commands::changeOf({{rectangle->getProperty(u"transformOrigin"_s), u"Center"_s}})));
    EXPECT_EQ(field<QLabel>(editor)->text(), u"Center"_s);
}

TEST_F(ChoiceEditorsTest, ScreensTurnByQuarters)
{
    PropertyEditor *editor = edit({main, other}, "orientation");
    const QList<QToolButton *> turns = editor->findChildren<QToolButton *>();
    ASSERT_EQ(turns.size(), 4);
    EXPECT_TRUE(turns.at(0)->isChecked());
    EXPECT_EQ(turns.at(1)->accessibleName(), u"Orientation, 90\u00B0"_s);
    turns.at(1)->click();
    EXPECT_EQ(value(main, "orientation") + u' ' + value(other, "orientation"), u"90 90"_s);
    ASSERT_TRUE(push(Commands::changeOf({{main->getProperty(u"orientation"_s), u"180"_s}})));
    EXPECT_TRUE(std::ranges::none_of(turns, &QToolButton::isChecked)) << "mixed";
    turns.at(3)->click();
    EXPECT_EQ(value(main, "orientation") + u' ' + value(other, "orientation"), u"270 270"_s);
}

TEST_F(ChoiceEditorsTest, AFlagChangesAlone)
{
    const QList<DesignerObject *> both = specimens();
    ASSERT_TRUE(push(
        Commands::changeOf({{both.at(0)->getProperty(u"sendErrors"_s), u"busy: true, offline: true"_s}})));
    PropertyEditor *editor = edit(both, "sendErrors");
    EXPECT_EQ(box(editor, u"The target is busy"_s)->checkState(), Qt::PartiallyChecked);
    box(editor, u"The target is offline"_s)->click();
    EXPECT_EQ(value(both.at(0), "sendErrors"), u"busy: true, offline: false"_s);
    EXPECT_EQ(value(both.at(1), "sendErrors"), u"busy: false, offline: false"_s);
    box(edit(both, "ioErrors"), u"Input or output fails"_s)->click();
    EXPECT_EQ(value(both.at(1), "ioErrors"), u"id: false, io: false"_s);
    EXPECT_EQ(edit(both, "receiveErrors")->findChildren<QCheckBox *>().size(), 4);
}

TEST_F(ChoiceEditorsTest, AConditionIsASentence)
{
    const QList<DesignerObject *> both = specimens();
    DesignerObject *specimen = both.constFirst();
    PropertyEditor *editor = edit({specimen}, "alarm");
    const QList<KdComboBox *> words = editor->findChildren<KdComboBox *>();
    const QList<KdNumberEdit *> numbers = editor->findChildren<KdNumberEdit *>();
    ASSERT_TRUE(words.size() == 3 && numbers.size() == 2);
    const auto sentence = [editor] { return editor->findChild<QLabel *>()->text(); };
    EXPECT_EQ(sentence(), u"The value is above 10 and at most 20."_s);
    numbers.at(1)->setFocus(Qt::TabFocusReason);
    type(u"+=5"_s);
    EXPECT_EQ(sentence(), u"The value is above 10 and at most 25."_s);
    QTest::keyClick(words.at(2), Qt::Key_Home);
    EXPECT_EQ(sentence(), u"The value is above 10."_s);
    EXPECT_FALSE(numbers.at(1)->isEnabled());
    QTest::keyClick(words.at(1), Qt::Key_Home);
    EXPECT_EQ(sentence(), u"Every value fulfills the condition."_s);
    // What differs is kept.
    editor = edit(both, "alarm");
    numbers.at(0)->setFocus(Qt::TabFocusReason);
    type(u"7"_s);
    EXPECT_EQ(value(both.at(1), "alarm"),
              u"condition1: GT; condition2: LE; operator: AND; value1: 7; value2: 20;"_s);
}

} // namespace Halvane::Corvex::Designer::Test
