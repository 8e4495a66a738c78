// SPDX-License-Identifier: MIT
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/editors/ChangesEditors.h"
#include "corvex/editors/changes/RulesDialog.h"
#include "corvex/values/expressions/UpdateObjectList.h"
#include "corvex/values/runtime/PropertyList.h"
#include "corvex/widgets/KdLineEdit.h"

#include "EditorFixture.h"

#include <QHelpEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QToolButton>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ChangesEditorTest : public EditorFixture
{
protected:
    template<class Widget>
    static Widget *named(const QWidget *parent, const QString &ending)
    {
        for (Widget *widget : parent->findChildren<Widget *>()) {
            if (widget->isVisible() && widget->accessibleName().endsWith(ending)) {
                return widget;
            }
        }
        ADD_FAILURE() << qPrintable(ending);
        return nullptr;
    }
    static void enter(const QWidget *parent, const QString &field, const QString &text)
    {
        auto *widget = named<QWidget>(parent, field);
        ASSERT_TRUE(widget);
        widget->setFocus();
        type(text);
    }
    ChangesEditor *changes(DesignerObject *object, const char *id)
    {
        auto *editor = qobject_cast<ChangesEditor *>(edit({object}, id));
        EXPECT_TRUE(editor);
        return editor;
    }
    static QString typeLine(const QWidget *editor, const QString &element, const QString &property)
    {
        named<QPushButton>(editor, u"Add Line"_s)->click();
        const QString line = QApplication::focusWidget()->accessibleName().section(u", "_s, 0, 1);
        enter(editor, line + u", element"_s, element);
        enter(editor, line + u", property"_s, property);
        return line;
    }
};

TEST_F(ChangesEditorTest, ALineOfAStateHasTheEditorOfItsProperty)
{
    DesignerObject *button = element("button1");
    ChangesEditor *editor = changes(button, "pressedState");
    const QString before = text();
    const QString line = typeLine(editor, u"rectangle1"_s, u"radius"_s);
    EXPECT_EQ(UpdateObjectList(value(button, "pressedState")).at(0).propertyValues().at(0).propValue(),
              value(element("rectangle1"), "radius"))
        << "a new line begins with the value of the element";
    enter(editor, line + u", rectangle1.radius"_s, u"7"_s);
    const UpdateObjectList updates(value(button, "pressedState"));
    ASSERT_EQ(updates.count(), 1);
    EXPECT_EQ(updates.at(0).name(), u"rectangle1"_s);
    EXPECT_EQ(updates.at(0).propertyValues().at(0), PropertyInfo(u"radius"_s, u"7"_s));
    EXPECT_EQ(value(element("rectangle1"), "radius"), u"0"_s) << "the element itself";
    // A value that the property refuses stays in its field.
    enter(editor, line + u", rectangle1.radius"_s, u"wide"_s);
    EXPECT_EQ(UpdateObjectList(value(button, "pressedState")), updates);

    named<QToolButton>(editor, line + u", remove"_s)->click();
    EXPECT_EQ(value(button, "pressedState"), QString());
    while (text() != before) {
        ASSERT_TRUE(document->undo());
    }
    EXPECT_EQ(editor->row().value, QString());
}

TEST_F(ChangesEditorTest, ALineIsAsHighAsItsTextAndACutNameIsAToolTip)
{
    DesignerObject *action = element("action1");
    const SharedProperty stored = action->getProperty(u"propertyChanges"_s);
    const QString setting = u"{ text1.text: a text that is much too long for a single line }"_s;
    ASSERT_TRUE(push(Commands::changeOf({{stored, ReadableValue::read(*stored, setting).stored}})));
    ASSERT_TRUE(push(Commands::renameOf(element("text1"), u"aTextWithAVeryLongNameInAState"_s)));
    ChangesEditor *editor = changes(action, "propertyChanges");
    QApplication::processEvents();
    const auto *text = named<QPlainTextEdit>(editor, u".text"_s);
    EXPECT_GE(text->height(), 2 * text->fontMetrics().height());
    const auto *add = named<QPushButton>(editor, u"Add Line"_s);
    EXPECT_GE(add->mapTo(editor, QPoint()).y(), text->mapTo(editor, text->rect().bottomLeft()).y());
    auto *name = named<KdLineEdit>(editor, u"line 1, element"_s);
    QHelpEvent event(QEvent::ToolTip, QPoint(), QPoint());
    QApplication::sendEvent(name, &event);
    EXPECT_EQ(QToolTip::text(), Qt::convertFromPlainText(name->text()));
    QToolTip::hideText();
}

TEST_F(ChangesEditorTest, TheTextIsAnotherViewThatLosesNothing)
{
    DesignerObject *action = element("action1");
    ChangesEditor *editor = changes(action, "propertyChanges");
    ASSERT_TRUE(editor->showAsText(true));
    auto *page = field<QPlainTextEdit>(editor);
    page->setFocus();
    type(u"{ rectangle1.radius: 4; rectangle2.radius: 5 }"_s);
    const QString stored = value(action, "propertyChanges");
    EXPECT_EQ(PropertyList(stored).count(), 2);
    ASSERT_TRUE(editor->showAsText(false));
    EXPECT_EQ(value(action, "propertyChanges"), stored);
    EXPECT_EQ(named<KdLineEdit>(editor, u"line 2, element"_s)->text(), u"rectangle2"_s);

    named<QPushButton>(editor, u"Add Line"_s)->click();
    EXPECT_FALSE(editor->showAsText(true)) << "an incomplete line would be lost";
    EXPECT_TRUE(editor->errorString().startsWith(u"Line 3 is not complete"_s));
    named<QToolButton>(editor, u"line 3, remove"_s)->click();
    ASSERT_TRUE(editor->showAsText(true));
    page->setFocus();
    type(u"{ rectangle9.radius: 4 }"_s);
    EXPECT_FALSE(editor->showAsText(false)) << "an error";
    EXPECT_EQ(page->toPlainText(), u"{ rectangle9.radius: 4 }"_s);
    EXPECT_EQ(value(action, "propertyChanges"), stored);
}

TEST_F(ChangesEditorTest, AssignmentsAreLinesWithTargetAndSource)
{
    DesignerObject *button = element("button1");
    ChangesEditor *editor = changes(button, "pressed");
    named<QPushButton>(editor, u"Add Line"_s)->click();
    enter(editor, u"line 1, target"_s, u"speed"_s);
    EXPECT_EQ(value(button, "pressed"), QString()) << "not complete";
    enter(editor, u"line 1, source"_s, u"12"_s);
    EXPECT_EQ(value(button, "pressed"), u"<0406speed><0204C>"_s);
    enter(editor, u"line 1, source"_s, u"sped"_s);
    EXPECT_EQ(value(button, "pressed"), u"<0406speed><0204C>"_s);
    EXPECT_TRUE(editor->errorString().startsWith(u"Line 1: "_s)) << qPrintable(editor->errorString());
    EXPECT_TRUE(editor->errorString().contains(u"\"speed\""_s));
}

TEST_F(ChangesEditorTest, RulesHaveADialog)
{
    DesignerObject *logic = element("logicBuilder1");
    PropertyEditor *editor = edit({logic}, "logicExpression");
    type(u"when speed > 1 do on = true"_s);
    const QString stored = value(logic, "logicExpression");
    EXPECT_FALSE(stored.isEmpty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    auto *dialog = editor->findChild<RulesDialog *>();
    ASSERT_TRUE(dialog);
    QApplication::setActiveWindow(dialog);
    named<QPushButton>(dialog, u"Add Rule"_s)->click();
    enter(dialog, u"line 2, condition"_s, u"speed < 1"_s);
    dialog->accept();
    EXPECT_TRUE(dialog->isVisible()) << "without an effect";
    enter(dialog, u"line 2, effect"_s, u"on = false"_s);
    dialog->resize(400, 10); // the rules scroll, and none covers another
    QApplication::processEvents();
    dialog->reject();
    auto *question = dialog->findChild<QMessageBox *>();
    ASSERT_TRUE(question) << "the second rule would be lost";
    question->button(QMessageBox::Cancel)->click();
    EXPECT_TRUE(dialog->isVisible());
    const auto *upper = named<QPlainTextEdit>(dialog, u"line 1, effect"_s);
    const auto *lower = named<QPlainTextEdit>(dialog, u"line 2, condition"_s);
    EXPECT_GE(lower->mapTo(dialog, QPoint()).y(), upper->mapTo(dialog, upper->rect().bottomLeft()).y());
    dialog->accept();
    EXPECT_EQ(value(logic, "logicExpression"), stored + u", <0406speed><0101<><02041>|<0403on><02030>"_s);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(value(logic, "logicExpression"), stored);
    RulesDialog unchanged(logic->getProperty(u"logicExpression"_s));
    ASSERT_TRUE(unchanged.setStored(stored));
    unchanged.show();
    unchanged.reject();
    EXPECT_FALSE(unchanged.isVisible());
}

TEST_F(ChangesEditorTest, ALinkInAStateIsThatOfTheState)
{
    DesignerObject *button = element("button1");
    DesignerObject *image = element("image1");
    const SharedProperty state = button->getProperty(u"pressedState"_s);
    ASSERT_TRUE(push(Commands::changeOf({{image->getProperty(u"source"_s), u"objectId: pump.png;"_s}})));
    const QString settings = u"{ image1.source: \"\"; rectangle1.size: 10 x 20 }"_s;
    ASSERT_TRUE(push(Commands::changeOf({{state, ReadableValue::read(*state, settings).stored}})));
    ChangesEditor *editor = changes(button, "pressedState");
    const DesignerObject *requested = nullptr;
    QObject::connect(&panel->requests(), &EditorRequests::objectRequested, panel.get(),
                     [&](const DesignerObject *object) { requested = object; });
    auto *goTo = named<QToolButton>(editor, u"image1.source, go to"_s);
    ASSERT_TRUE(goTo);
    EXPECT_FALSE(goTo->isEnabled()) << "the element has a picture, the state has none";
    enter(editor, u"image1.source"_s, u"pump.png"_s);
    EXPECT_TRUE(goTo->isEnabled());
    goTo->click();
    EXPECT_TRUE(requested);
    EXPECT_EQ(named<KdLineEdit>(editor, u"rectangle1.size, width"_s)->text(), u"10"_s);
}

TEST_F(ChangesEditorTest, ARecordingGoesOnWhileOtherObjectsAreSelected)
{
    DesignerObject *button = element("button1");
    DesignerObject *rectangle = element("rectangle1");
    EXPECT_FALSE(changes(button, "pressedState")->findChildren<QToolButton *>().constLast()->isVisible());
    QSignalSpy requested(&panel->requests(), &EditorRequests::recordingRequested);
    auto *record = named<QToolButton>(changes(button, "pressedState"), u", Record"_s);
    ASSERT_TRUE(record);
    record->click();
    ASSERT_EQ(requested.size(), 1);
    EXPECT_EQ(panel->requests().recorded(), button->getProperty(u"pressedState"_s));
    for (const QString &radius : {u"8"_s, u"9"_s}) {
        ASSERT_TRUE(push(Commands::changeOf({{rectangle->getProperty(u"radius"_s), radius}})));
        ASSERT_TRUE(push(ChangesEditor::recordOf(panel->requests().recorded(), rectangle, u"radius"_s)));
    }
    const UpdateObjectList updates(value(button, "pressedState"));
    ASSERT_EQ(updates.count(), 1);
    EXPECT_EQ(updates.at(0).propertyValues().count(), 1);
    EXPECT_EQ(updates.at(0).propertyValues().at(0).propValue(), u"9"_s);
    record = named<QToolButton>(changes(button, "pressedState"), u"Pressed State, Record"_s);
    ASSERT_TRUE(record && record->isChecked());
    record->click();
    EXPECT_FALSE(panel->requests().recorded());

    ASSERT_TRUE(push(ChangesEditor::recordOf(button->getProperty(u"pressed"_s), rectangle, u"radius"_s)));
    EXPECT_EQ(value(button, "pressed"), u"<0304rectangle1.radius><02049>"_s);
    EXPECT_FALSE(ChangesEditor::recordOf(rectangle->getProperty(u"size"_s), rectangle, u"radius"_s));
}

TEST_F(ChangesEditorTest, WhatTheTableCannotShowIsText)
{
    DesignerObject *button = element("button1");
    UpdateObjectInfo update;
    update.setName(u"rectangle1"_s);
    update.setScreen(u"Main"_s);
    ASSERT_TRUE(push(Commands::changeOf({{button->getProperty(u"pressedState"_s), update.toString()}})));
    ChangesEditor *editor = changes(button, "pressedState");
    EXPECT_TRUE(field<QPlainTextEdit>(editor)->isVisible());
    EXPECT_TRUE(editor->findChildren<KdLineEdit *>().isEmpty());
    EXPECT_EQ(value(button, "pressedState"), update.toString());
}

} // namespace Halvane::Corvex::Designer::Test
