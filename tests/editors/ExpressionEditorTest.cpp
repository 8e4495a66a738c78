// SPDX-License-Identifier: MIT
#include "corvex/document/LiveValues.h"
#include "corvex/editors/ExpressionEditors.h"
#include "corvex/editors/expressions/ExpressionDialog.h"
#include "corvex/preview/PreviewSession.h"

#include "EditorFixture.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class ExpressionEditorTest : public EditorFixture
{
protected:
    DesignerObject *speed() const { return document->project().variables()->getListItem(u"speed"_s); }
    static QString shown(const PropertyEditor *editor)
    {
        return field<QPlainTextEdit>(editor)->toPlainText();
    }
    //! What the editor or the builder says about the result.
    static QString result(const QWidget *widget)
    {
        const auto *hint = widget->findChild<QLabel *>(u"hint"_s);
        const auto *label = widget->findChild<QLabel *>(u"result"_s);
        return label ? label->text() : hint && !hint->isHidden() ? hint->text() : QString();
    }
    static QString error(const QWidget *widget) { return widget->findChild<QLabel *>(u"error"_s)->text(); }
    //! Opens the builder of the editor with the focus.
    static ExpressionDialog *builderOf(PropertyEditor *editor)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
        auto *dialog = editor->findChild<ExpressionDialog *>();
        EXPECT_TRUE(dialog);
        QApplication::setActiveWindow(dialog);
        return dialog;
    }
    //! The names in the list of completions.
    static QStringList completions(const QWidget *widget)
    {
        const auto *completer = widget->findChild<QCompleter *>();
        QStringList names;
        for (int row = 0;
             completer && completer->popup()->isVisible() && row < completer->model()->rowCount(); ++row) {
            names.append(completer->model()->index(row, 0).data(Qt::EditRole).toString());
        }
        return names;
    }
};

TEST_F(ExpressionEditorTest, ReadableTextBecomesTheStoredExpressionAndItsValueIsShown)
{
    ASSERT_TRUE(push(
        Commands::changeOf({{speed()->getProperty(u"value"_s), u"12.5"_s},
                            {element("rectangle2")->getProperty(u"size"_s), u"height: 3; width: 40;"_s}})));
    struct Case
    {
        const char *element;
        const char *id;
        QString typed;
        QString stored;
        QString result;
    };
    const Case cases[] = {
        {"rectangle1", "xBinding", u"speed * 2"_s, u"<0406speed><0101*><02042>"_s, u"= 25 (number)"_s},
        {"rectangle1", "visibleBinding", u"speed > 10 and not on"_s,
         u"<0406speed><0101>><0204A><0101&&><0403on><0101==><02030>"_s, u"= true (boolean)"_s},
        {"text1", "textBinding", u"concat(\"a\", speed)"_s,
         u"<0502concat><0207YQ==><0101,><0406speed><0101)>"_s, u"= \"a12.5\" (text)"_s},
        {"rectangle1", "xBinding", u"rectangle2.width"_s, u"0306rectangle2.width"_s, u"= 40 (number)"_s},
        {"rectangle1", "xBinding", u"getLogCount(history)"_s, u"<0502getLogCount><040Ahistory><0101)>"_s,
         u"number: Only the device has the values of logs."_s},
    };
    for (const Case &row : cases) {
        PropertyEditor *editor = edit({element(row.element)}, row.id);
        ASSERT_TRUE(qobject_cast<ExpressionEditor *>(editor)) << row.id;
        type(row.typed);
        EXPECT_EQ(value(element(row.element), row.id), row.stored) << qPrintable(row.typed);
        EXPECT_EQ(shown(editor), row.typed);
        EXPECT_EQ(result(editor), row.result) << qPrintable(row.typed);
        EXPECT_FALSE(editor->hasEntry());
    }
}

TEST_F(ExpressionEditorTest, TheValueFollowsTheVariable)
{
    PropertyEditor *editor = edit({element("rectangle1")}, "xBinding");
    type(u"speed + 1"_s);
    ASSERT_TRUE(push(Commands::changeOf({{speed()->getProperty(u"value"_s), u"7"_s}})));
    QApplication::processEvents();
    EXPECT_EQ(result(editor), u"= 8 (number)"_s);
}

TEST_F(ExpressionEditorTest, TheValuesOfARunningPreviewAreShown)
{
    const auto build = document->build();
    ASSERT_TRUE(build);
    QSignalSpy finished(build.get(), &Common::Job::finished);
    ASSERT_TRUE(finished.wait());
    const auto running = build->takeResult();
    ASSERT_TRUE(running) << qPrintable(build->errorString());
    Preview::PreviewSession session;
    QString problem;
    ASSERT_TRUE(session.open(**running, &problem)) << qPrintable(problem);
    LiveValues &live = LiveValues::of(document->project());
    QObject::connect(&session, &Preview::PreviewSession::valueChanged, &live, &LiveValues::changed);

    PropertyEditor *editor = edit({element("rectangle1")}, "xBinding");
    type(u"speed + rectangle2.width"_s);
    ExpressionBuilder builder(element("rectangle1")->getProperty(u"xBinding"_s));
    builder.setText(u"speed + rectangle2.width"_s);
    const auto expectBoth = [&](double sum, const char *when) {
        QApplication::processEvents();
        EXPECT_EQ(result(editor), u"= %1 (number)"_s.arg(sum)) << when;
        EXPECT_EQ(result(&builder), u"= %1 (number)"_s.arg(sum)) << when;
    };
    const double width = session.find(u"Main.rectangle2")->property("width").toDouble();
    expectBoth(width, "from the project");
    live.setReader([&session](const QString &name) { return session.valueOf(name); });
    session.panel().variables().find(u"speed"_s)->setValue(5);
    expectBoth(width + 5, "a variable");
    session.find(u"Main.rectangle2")->setProperty("width", 77);
    expectBoth(82, "a property");
    ASSERT_TRUE(session.showScreen(u"Other"_s));
    expectBoth(width + 5, "the element is on another screen");
    QAbstractItemModel *values = builder.findChildren<QTableView *>().constLast()->model();
    ASSERT_TRUE(values->setData(values->index(0, 2), u"1"_s));
    EXPECT_EQ(result(&builder), u"= %1 (number)"_s.arg(width + 1)) << "an entered value";
    ASSERT_TRUE(values->setData(values->index(0, 2), QString()));
    live.setReader({});
    expectBoth(width, "the preview has ended");
}

TEST_F(ExpressionEditorTest, AWrongTextStaysWithItsErrorUntilEscape)
{
    PropertyEditor *editor = edit({element("rectangle1")}, "xBinding");
    const QString before = text();
    type(u"sped * 2"_s);
    EXPECT_EQ(text(), before);
    EXPECT_EQ(shown(editor), u"sped * 2"_s);
    EXPECT_TRUE(error(editor).contains(u"Did you mean \"speed\"?"_s)) << qPrintable(error(editor));
    EXPECT_EQ(field<QPlainTextEdit>(editor)->extraSelections().size(), 1);
    QTest::keyClick(field<QPlainTextEdit>(editor), Qt::Key_Escape);
    EXPECT_EQ(shown(editor), QString());
    EXPECT_TRUE(editor->errorString().isEmpty());
}

TEST_F(ExpressionEditorTest, SeveralObjectsShowMixedAndGetOneExpression)
{
    DesignerObject *first = element("rectangle1");
    DesignerObject *second = element("rectangle2");
    ASSERT_TRUE(push(Commands::changeOf({{second->getProperty(u"xBinding"_s), u"0406speed"_s}})));
    PropertyEditor *editor = edit({first, second}, "xBinding");
    EXPECT_EQ(shown(editor), QString());
    EXPECT_EQ(field<QPlainTextEdit>(editor)->placeholderText(), u"Mixed"_s);
    const QString before = text();
    type(u"speed + 2"_s, Qt::Key_Tab);
    EXPECT_EQ(value(first, "xBinding"), u"<0406speed><0101+><02042>"_s);
    EXPECT_EQ(value(second, "xBinding"), value(first, "xBinding"));
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
}

TEST_F(ExpressionEditorTest, CompletionBeginsWithTheExpectedType)
{
    ASSERT_TRUE(push(Commands::changeOf({{speed()->getProperty(u"value"_s), u"3"_s}})));
    add(document->project().variables(), "BooleanVariable", "spare");
    add(document->project().variables(), "NumberVariable", "outspeed");
    edit({element("rectangle1")}, "xBinding");
    QWidget *edited = QApplication::focusWidget();
    struct Case
    {
        QString typed;
        QStringList first; //!< of the list
        QString accepted;
    };
    const Case cases[] = {
        {u"sp"_s, {u"speed"_s, u"outspeed"_s}, u"speed"_s},
        {u"spare == 1 and sp"_s, {u"spare"_s}, u"spare == 1 and spare"_s},
        {u"sqr"_s, {u"sqrt"_s}, u"sqrt("_s},
        {u"1 + rectangle2.wid"_s, {u"rectangle2.width"_s}, u"1 + rectangle2.width"_s},
        {u"concat(sp"_s, {u"split"_s}, u"concat(split("_s},
    };
    for (const Case &row : cases) {
        QTest::keyClick(edited, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(edited, row.typed);
        EXPECT_EQ(completions(edited).first(std::min(row.first.size(), completions(edited).size())),
                  row.first)
            << qPrintable(row.typed);
        QTest::keyClick(edited, Qt::Key_Tab);
        EXPECT_EQ(static_cast<QPlainTextEdit *>(edited)->toPlainText(), row.accepted);
        EXPECT_TRUE(completions(edited).isEmpty());
    }
    QTest::keyClick(edited, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(edited, u"\"sp"_s);
    EXPECT_TRUE(completions(edited).isEmpty()) << "in a text";
}

TEST_F(ExpressionEditorTest, TheBuilderShowsErrorsWithAFixPartsAndCode)
{
    PropertyEditor *editor = edit({element("rectangle1")}, "visibleBinding");
    ExpressionDialog *dialog = builderOf(editor);
    auto *page = dialog->builder()->findChild<QPlainTextEdit *>();
    auto *fix = dialog->findChild<QPushButton *>(u"fix"_s);
    struct Case
    {
        QString typed;
        QString fixed;
    };
    const Case cases[] = {
        {u"sped > 10"_s, u"speed > 10"_s},
        {u"speed = 10"_s, u"speed == 10"_s},
        {u"speed <> 10"_s, u"speed != 10"_s},
        {u"(speed > 10"_s, u"(speed > 10)"_s},
    };
    for (const Case &row : cases) {
        QTest::keyClick(page, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(page, row.typed);
        EXPECT_FALSE(dialog->builder()->errorString().isEmpty());
        EXPECT_EQ(error(dialog), dialog->builder()->errorString());
        dialog->accept();
        EXPECT_TRUE(dialog->isVisible()) << "with an error";
        ASSERT_TRUE(fix->isVisible()) << qPrintable(row.typed);
        fix->click();
        EXPECT_EQ(page->toPlainText(), row.fixed);
        EXPECT_TRUE(dialog->builder()->errorString().isEmpty());
    }
    EXPECT_EQ(dialog->findChild<QPlainTextEdit *>(u"code"_s)->toPlainText(),
              u"( qmlViewer.getVariableValue(\"speed\") > 10 )"_s);
    QTextCursor cursor = page->textCursor();
    cursor.setPosition(1);
    cursor.setPosition(6, QTextCursor::KeepAnchor);
    page->setTextCursor(cursor);
    EXPECT_EQ(result(dialog), u"= 0 (number)"_s);
    // A test value is used instead of the one in the project.
    QAbstractItemModel *values = dialog->findChildren<QTableView *>().constLast()->model();
    ASSERT_EQ(values->rowCount(), 1);
    const QString before = text();
    ASSERT_TRUE(values->setData(values->index(0, 2), u"11"_s));
    EXPECT_EQ(result(dialog), u"= 11 (number)"_s);
    EXPECT_EQ(text(), before);
    QTest::keyClick(page, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(value(element("rectangle1"), "visibleBinding"), u"<0101(><0406speed><0101>><0204A><0101)>"_s);
}

TEST_F(ExpressionEditorTest, TextAndTermsAreTwoViewsAndNothingIsLostBetweenThem)
{
    edit({element("rectangle1")}, "xBinding");
    ExpressionBuilder builder(element("rectangle1")->getProperty(u"xBinding"_s));
    builder.show();
    builder.setText(u"speed + 1"_s);
    ASSERT_TRUE(builder.showAsText(false));
    auto *terms = builder.findChild<QTableView *>();
    ASSERT_EQ(terms->model()->rowCount(), 3);
    ASSERT_TRUE(terms->model()->setData(terms->model()->index(2, 2), u"5"_s));
    terms->setCurrentIndex(terms->model()->index(2, 0));
    QTest::keyClick(terms, Qt::Key_Up, Qt::AltModifier);
    EXPECT_FALSE(builder.errorString().isEmpty()) << "an operator is missing";
    QTest::keyClick(terms, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(builder.stored(), u"<0406speed><0101+><02045>"_s);
    ASSERT_TRUE(builder.showAsText(true));
    EXPECT_EQ(builder.text(), u"speed + 5"_s);

    builder.setText(u"speed+\n5"_s);
    ASSERT_TRUE(builder.showAsText(false));
    ASSERT_TRUE(builder.showAsText(true));
    EXPECT_EQ(builder.text(), u"speed+\n5"_s) << "the form of the user";
    ASSERT_TRUE(builder.showAsText(false));
    QTest::keyClick(terms, Qt::Key_Down);
    QTest::keyClick(terms, Qt::Key_Delete);
    ASSERT_TRUE(builder.showAsText(true));
    EXPECT_EQ(builder.text(), u"speed 5"_s);
    QTest::keyClick(builder.findChild<QPlainTextEdit *>(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(builder.text(), u"speed+\n5"_s);

    builder.setText(u"speed + sped"_s);
    EXPECT_FALSE(builder.showAsText(false));
    EXPECT_EQ(builder.text(), u"speed + sped"_s);
    builder.setStored(u"<0502cube><0406speed><0101)>"_s);
    EXPECT_FALSE(builder.showsText());
    EXPECT_FALSE(builder.showAsText(true));
    EXPECT_TRUE(error(&builder).contains(u"Term 1, \"function cube\""_s)) << qPrintable(error(&builder));
}

TEST_F(ExpressionEditorTest, TheSignatureShowsTheArgumentAtTheCursor)
{
    ExpressionBuilder builder(element("text1")->getProperty(u"textBinding"_s));
    builder.setText(u"concat(\"a\", replace(speed, \"1\""_s);
    const QString signature = builder.findChild<QLabel *>(u"signature"_s)->text();
    EXPECT_TRUE(signature.startsWith(u"replace(text: text, <b>old: text</b>, new: text): text"_s))
        << qPrintable(signature);
}

TEST_F(ExpressionEditorTest, HostileExpressionsHaveNoValueAndNoEffect)
{
    PropertyEditor *editor = edit({element("text1")}, "textBinding");
    QString nested = u"\"%1\""_s.arg(QString(900, u'a'));
    for (int i = 0; i < 20; ++i) {
        nested = u"replace(%1, \"a\", \"%2\")"_s.arg(nested, QString(900, u'a'));
    }
    const QString deep = u"speed + "_s + QString(600, u'(') + u"1"_s + QString(600, u')');
    for (const QString &typed : {nested, deep}) {
        auto *line = field<QPlainTextEdit>(editor);
        line->setPlainText(typed);
        EXPECT_FALSE(result(editor).startsWith(u'=')) << qPrintable(result(editor));
    }
}

} // namespace Halvane::Corvex::Designer::Test
