// SPDX-License-Identifier: MIT
#include "corvex/editors/HardwareEditors.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/widgets/KdLineEdit.h"

#include "EditorFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class HardwareEditorsTest : public EditorFixture
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA)));
        EditorFixture::SetUp();
        ASSERT_TRUE(document->project().updateConfiguration());
        model = document->project().configurationObject();
    }
    void TearDown() override
    {
        EditorFixture::TearDown();
        delete HardwareConfigurations::instance();
    }
    static QString shownText(const PropertyEditor *editor)
    {
        QStringList texts;
        for (const QLabel *label : editor->findChildren<QLabel *>()) {
            if (!label->isHidden() && !label->text().isEmpty()) {
                texts.append(label->text());
            }
        }
        return texts.join(u'\n');
    }
    //! Chooses a use in a table of channels by keyboard.
    static void use(const PropertyEditor *editor, int row, const QString &title)
    {
        auto *table = field<QTableWidget>(editor);
        table->setCurrentCell(row, 1);
        QTest::keyClick(table, Qt::Key_F2);
        auto *choice = table->findChild<QComboBox *>();
        ASSERT_TRUE(choice);
        choice->setCurrentText(title);
        emit choice->activated(choice->currentIndex());
        QCoreApplication::processEvents();
    }

    Configuration *model = nullptr;
};

TEST_F(HardwareEditorsTest, AChannelIsTypedSteppedAndChosenAmongThoseOfTheModel)
{
    DesignerObject *pwm = element("pwmOutput1");
    addTo(main, "PwmOutput"); // on channel 1, too
    DesignerObject *second = element("pwmOutput2");
    PropertyEditor *editor = edit({second}, "channel");
    EXPECT_TRUE(shownText(editor).contains(u"of 4"_s));
    QTest::keyClick(field<KdLineEdit>(editor), Qt::Key_Up);
    EXPECT_EQ(value(second, "channel"), u"2"_s);
    QTest::keyClick(field<KdLineEdit>(editor), Qt::Key_Down);
    EXPECT_EQ(value(second, "channel"), u"2"_s) << "pwmOutput1 uses channel 1";

    QTest::keyClick(field<KdLineEdit>(editor), Qt::Key_Down, Qt::AltModifier);
    auto *menu = editor->findChild<QMenu *>();
    ASSERT_TRUE(menu);
    QStringList texts;
    for (const QAction *action : menu->actions()) {
        texts.append(action->text());
    }
    EXPECT_EQ(texts, QStringList({u"Channel 1: used by pwmOutput1"_s, u"Channel 2"_s, u"Channel 3: free"_s,
                                  u"Channel 4: free"_s}));
    menu->actions().at(2)->trigger();
    menu->close();
    EXPECT_EQ(value(second, "channel"), u"3"_s);

    field<KdLineEdit>(editor)->setFocus();
    type(u"one"_s);
    EXPECT_FALSE(editor->errorString().isEmpty());
    EXPECT_EQ(value(second, "channel"), u"3"_s);
    type(u"9"_s);
    EXPECT_EQ(value(second, "channel"), u"9"_s);
    EXPECT_TRUE(shownText(editor).contains(u"no channel 9"_s)) << qPrintable(shownText(editor));
    edit({pwm, second}, "channel");
    EXPECT_EQ(field<KdLineEdit>(editor)->placeholderText(), u"Mixed"_s);
}

TEST_F(HardwareEditorsTest, ChannelListsShowUsesAndUsersAndChangeOneUse)
{
    ASSERT_TRUE(push(Commands::changeOf({{model->enableRS485(), u"true"_s}})));
    addTo(main, "DigitalInputOutput");
    PropertyEditor *editor = edit({model}, "digitalInputOutputs");
    const auto *table = field<QTableWidget>(editor);
    ASSERT_TRUE(table);
    EXPECT_EQ(table->rowCount(), 8);
    QCoreApplication::processEvents();
    EXPECT_EQ(table->item(0, 1)->text(), u"Input"_s);
    EXPECT_EQ(table->item(0, 2)->text(), u"Main.digitalInputOutput1"_s);
    const QString before = text();
    use(editor, 0, u"Output"_s);
    EXPECT_TRUE(value(model, "digitalInputOutputs").startsWith(u"OUTPUT, INPUT,"_s));
    EXPECT_EQ(table->item(0, 1)->text(), u"Output"_s);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
    EXPECT_EQ(table->item(0, 1)->text(), u"Input"_s);

    editor = edit({model}, "serialRS485Ports");
    use(editor, 3, u"Direction"_s);
    EXPECT_EQ(value(model, "serialRS485Ports"), u"RECEIVE, SEND, UNUSED, DIRECTION"_s);
    QCoreApplication::processEvents();
    EXPECT_TRUE(edit({model}, "digitalInputOutputs")
                    ->findChild<QTableWidget *>()
                    ->item(7, 2)
                    ->text()
                    .contains(u"RS485 line 4"_s));
}

TEST_F(HardwareEditorsTest, AChangeOfModelListsWhatItDoesAndWaitsForTheUser)
{
    ASSERT_TRUE(push(Commands::changeOf({{element("pwmOutput1")->getProperty(u"channel"_s), u"4"_s}})));
    PropertyEditor *editor = edit({model}, "id");
    const QString before = text();
    type(u"VTR 38"_s);
    EXPECT_TRUE(editor->errorString().contains(u"VTR 38-K"_s)) << qPrintable(editor->errorString());
    type(u"VTR 38-K"_s);
    EXPECT_EQ(text(), before);
    EXPECT_TRUE(shownText(editor).contains(u"480 x 272 \u2192 320 x 240"_s)) << qPrintable(shownText(editor));
    EXPECT_TRUE(shownText(editor).contains(u"\"Main.pwmOutput1\" moves from channel 4 to channel 1."_s));

    const QList<QPushButton *> buttons = editor->findChildren<QPushButton *>();
    ASSERT_EQ(buttons.size(), 2);
    QPushButton *confirm = buttons.at(0);
    EXPECT_TRUE(confirm->hasFocus());
    buttons.at(1)->click();
    EXPECT_EQ(field<KdLineEdit>(editor)->text(), u"VTR 50-K"_s);
    EXPECT_FALSE(confirm->isVisible());
    type(u"VTR 38-K"_s);
    document->select({main}); // gives the question up
    EXPECT_EQ(text(), before);

    editor = edit({model}, "id");
    type(u"VTR 38-K"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(model->getIdName(), u"VTR 38-K"_s);
    EXPECT_EQ(value(element("pwmOutput1"), "channel"), u"1"_s);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
}

TEST_F(HardwareEditorsTest, CompatibleModelsAreChecked)
{
    ASSERT_TRUE(push(Commands::changeOf({{model->compatibleModels(), u"VTR 1"_s}})));
    PropertyEditor *editor = edit({model}, "compatibleModels");
    auto *list = field<QListWidget>(editor);
    ASSERT_TRUE(list);
    EXPECT_TRUE(list->item(0)->text().startsWith(u"VTR 1 "_s)) << "not installed, and kept";
    list->findItems(u"VTR 70-CE"_s, Qt::MatchExactly).value(0)->setCheckState(Qt::Checked);
    QCoreApplication::processEvents();
    EXPECT_EQ(value(model, "compatibleModels"), u"VTR 1|VTR 70-CE"_s);
    list->item(0)->setCheckState(Qt::Unchecked);
    QCoreApplication::processEvents();
    EXPECT_EQ(value(model, "compatibleModels"), u"VTR 70-CE"_s);
}

} // namespace Halvane::Corvex::Designer::Test
