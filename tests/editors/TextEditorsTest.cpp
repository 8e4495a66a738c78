// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/KdTextEdit.h"

#include "EditorFixture.h"

#include <QDesktopServices>
#include <QLabel>
#include <QToolButton>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

//! Receives what the desktop would show.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(u"file"_s, this, "show"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    QUrl shown;

public slots:
    void show(const QUrl &url) { shown = url; }
};

class TextEditorsTest : public EditorFixture
{ };

TEST_F(TextEditorsTest, TextsHaveLinesAndGrow)
{
    DesignerObject *label = element("text1");
    PropertyEditor *editor = edit({label}, "text");
    auto *field = editor->findChild<KdTextEdit *>();
    const int height = editor->height();
    const QString before = text();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, u"say \"hi\""_s);
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClicks(field, u" two"_s);
    EXPECT_GT(editor->height(), height);
    EXPECT_EQ(text(), before) << "not complete";
    QTest::keyClick(field, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(value(label, "text"), u"say \"hi\"\n two"_s);
    QTest::keyClicks(field, u"more"_s);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(field->toPlainText(), u"say \"hi\"\n two"_s);
    QTest::keyClick(field, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(field, u"!"_s);
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_EQ(value(label, "text"), u"say \"hi\"\n two!"_s);
    ASSERT_TRUE(document->undo() && document->undo());
    EXPECT_EQ(text(), before);
    EXPECT_EQ(editor->height(), height);
}

TEST_F(TextEditorsTest, SeveralTextsAreMixed)
{
    auto *second = addTo(main, "Text");
    ASSERT_TRUE(push(Commands::changeOf({{second->getProperty(u"text"_s), u"other"_s}})));
    auto *field = edit({element("text1"), second}, "text")->findChild<KdTextEdit *>();
    EXPECT_EQ(field->placeholderText(), u"Mixed"_s);
    QTest::keyClicks(field, u"same"_s);
    QTest::keyClick(field, Qt::Key_Enter, Qt::ControlModifier);
    EXPECT_EQ(value(element("text1"), "text") + value(second, "text"), u"samesame"_s);
}

TEST_F(TextEditorsTest, ValuesThatFollowFromOthersCanBeCopied)
{
    PropertyEditor *editor = edit({document->project().configuration()->objectValue()}, "analogInputs");
    auto *line = field<KdLineEdit>(editor);
    EXPECT_TRUE(line->isReadOnly() && line->isEnabled());
    EXPECT_EQ(line->text(), editor->row().value);
    QTest::keyClicks(line, u"x"_s);
    EXPECT_EQ(line->text(), editor->row().value);
}

TEST_F(TextEditorsTest, TheOriginalIsShownInItsFolder)
{
    Desktop desktop;
    DesignerObject *image = document->project().imageResources()->getListItemAtIndex(0);
    PropertyEditor *editor = edit({image}, "originalLocation");
    auto *button = field<QToolButton>(editor);
    EXPECT_FALSE(button->isEnabled()) << "unknown";
    const auto locate = [&](const QString &path) {
        ASSERT_TRUE(image->changePropertyValue(image->getProperty(u"originalLocation"_s), path));
    };
    locate(folder.path() + u"/pump.png"_s);
    EXPECT_EQ(button->accessibleName(), u"Original Location, show in folder"_s);
    button->click();
    EXPECT_EQ(desktop.shown, QUrl::fromLocalFile(folder.path()));
    locate(u"/no/such/folder/pump.png"_s);
    button->click();
    EXPECT_TRUE(editor->errorString().contains(u"/no/such/folder"_s));
}

TEST_F(TextEditorsTest, PasswordsAreHidden)
{
    DesignerObject *configuration = document->project().configuration()->objectValue();
    ASSERT_TRUE(push(Commands::changeOf({{configuration->getProperty(u"enablePassword"_s), u"true"_s}})));
    PropertyEditor *editor = edit({configuration}, "password");
    auto *line = field<KdLineEdit>(editor);
    auto *show = field<QToolButton>(editor);
    const QString secret = u"tea4Two"_s;
    struct Case
    {
        QString typed; //!< after what is there
        QString strength;
    };
    line->setFocus(Qt::TabFocusReason);
    for (const Case &row :
         {Case{secret, u"weak"_s}, Case{u"xy"_s, u"fair"_s}, Case{u"?!12"_s, u"strong"_s}}) {
        QTest::keyClicks(line, row.typed);
        QStringList labels;
        for (const QLabel *label : editor->findChildren<QLabel *>()) {
            labels.append(label->isVisible() ? label->text() : QString());
        }
        EXPECT_TRUE(labels.join(u'|').contains(u"is "_s + row.strength)) << qPrintable(row.typed);
    }
    EXPECT_EQ(line->displayText(), QString(line->text().size(), line->displayText().at(0)));
    QTest::mousePress(show, Qt::LeftButton);
    EXPECT_EQ(line->displayText(), line->text());
    QTest::mouseRelease(show, Qt::LeftButton);
    EXPECT_EQ(line->echoMode(), QLineEdit::Password);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(value(configuration, "password"), secret + u"xy?!12"_s);
    panel->setFilter(u"tea4"_s);
    EXPECT_FALSE(panel->reveal(u"password"_s)) << "a search would find it out";
    panel->setFilter({});
    for (const QWidget *widget : panel->findChildren<QWidget *>()) {
        for (const QString &told :
             {widget->toolTip(), widget->accessibleName(), widget->accessibleDescription()}) {
            EXPECT_FALSE(told.contains(secret));
        }
    }
}

} // namespace Halvane::Corvex::Designer::Test

#include "TextEditorsTest.moc"
