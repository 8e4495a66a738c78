// SPDX-License-Identifier: MIT
#include "corvex/variables/ProjectVariable.h"
#include "corvex/widgets/KdTableView.h"
#include "corvex/widgets/SearchLine.h"

#include "actions/KeysDialog.h"
#include "actions/WindowActions.h"
#include "apps/nova/NovaFixture.h"
#include "panels/VariablesTable.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QKeySequenceEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova::Test {

using namespace Designer;

namespace {

class PanelsTest : public NovaFixture
{
protected:
    void SetUp() override
    {
        NovaFixture::SetUp();
        table = window->panel(u"panel.variables"_s)->findChild<KdTableView *>();
        model = qobject_cast<VariablesTable *>(table->model());
    }
    DesignerObject *variable(const char *name) const
    {
        return workspace().project().variables()->getListItem(QString::fromLatin1(name));
    }
    QModelIndex cell(const char *name, int column) const
    {
        return model->index(model->rowOf(variable(name)), column);
    }

    KdTableView *table = nullptr;
    VariablesTable *model = nullptr;
};

} // namespace

TEST_F(PanelsTest, variablesAreEditedInPlace)
{
    EXPECT_EQ(model->rowCount(), workspace().project().variables()->listItemCount());
    EXPECT_TRUE(model->setData(cell("wellLevel", VariablesTable::ValueColumn), u"71.5"_s));
    EXPECT_EQ(variable("wellLevel")->getProperty(u"value")->valueString(), u"71.5"_s);
    model->setData(cell("wellLevel", VariablesTable::NameColumn), u"tankLevel"_s);
    ASSERT_TRUE(variable("tankLevel"));
    EXPECT_EQ(model->index(model->rowOf(variable("tankLevel")), 0).data().toString(), u"tankLevel"_s);
    EXPECT_EQ(document().history().count(), 2);
    trigger("edit.undo");
    trigger("edit.undo");
    EXPECT_TRUE(variable("wellLevel"));

    answerNext(0); // the reason
    model->setData(cell("highLevel", VariablesTable::ValueColumn), u"perhaps"_s);
    EXPECT_EQ(variable("highLevel")->getProperty(u"value")->valueString(), u"false"_s);
    EXPECT_EQ(document().history().position(), 0);
    EXPECT_FALSE(model->flags(cell("wellLevel", VariablesTable::TypeColumn)).testFlag(Qt::ItemIsEditable));
}

// Tab goes on to the next cell that can be edited, also if the row moves with its new name.
TEST_F(PanelsTest, tabSkipsCellsThatCannotBeEdited)
{
    table->setCurrentIndex(cell("wellLevel", VariablesTable::NameColumn));
    table->edit(table->currentIndex());
    QTest::keyClicks(QApplication::focusWidget(), u"aaa"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(variable("aaa"));
    EXPECT_EQ(table->currentIndex(), cell("aaa", VariablesTable::ValueColumn));
    QTest::keyClicks(QApplication::focusWidget(), u"12.5"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents(); // the cell takes its text afterwards
    EXPECT_EQ(variable("aaa")->getProperty(u"value")->valueString(), u"12.5"_s);
}

// A pasted table is one step; rows after the last one become variables.
TEST_F(PanelsTest, pastedRowsAreOneStep)
{
    const QByteArray before = savedBytes();
    const int last = model->rowCount() - 1;
    const QString lastName = model->index(last, 0).data().toString();
    QApplication::clipboard()->setText(
        lastName + u"2\t\t\nboilerOn\tBoolean Variable\ttrue\nboilerText\t\thot\nboilerTemp\t\t72.5\n"_s);
    table->setCurrentIndex(model->index(last, 0));
    table->paste();
    EXPECT_EQ(document().history().count(), 1);
    EXPECT_TRUE(variable(qPrintable(lastName + u'2')));
    ASSERT_TRUE(variable("boilerTemp"));
    EXPECT_EQ(variable("boilerTemp")->getProperty(u"value")->valueString(), u"72.5"_s);
    EXPECT_EQ(variable("boilerOn")->className(), u"BooleanVariable"_s);
    EXPECT_EQ(variable("boilerText")->className(), u"StringVariable"_s);
    trigger("edit.undo");
    EXPECT_EQ(savedBytes(), before);

    // One bad cell, and nothing changes.
    QApplication::clipboard()->setText(u"good\t\t1\nbad name\t\t2\n"_s);
    answerNext(0);
    table->setCurrentIndex(model->index(last, 0));
    table->paste();
    EXPECT_EQ(savedBytes(), before);
}

TEST_F(PanelsTest, variablesAreFilteredAndFollowTheModel)
{
    auto *search = window->panel(u"panel.variables"_s)->findChild<SearchLine *>();
    QTest::keyClicks(search, u"LEVEL"_s);
    const int shown = model->rowCount();
    EXPECT_GT(shown, 0);
    EXPECT_LT(shown, workspace().project().variables()->listItemCount());
    model->add(u"NumberVariable"_s);
    EXPECT_EQ(model->rowCount(), shown) << "the new variable does not have the text";
    model->deleteRows({model->rowOf(variable("wellLevel"))});
    EXPECT_EQ(model->rowCount(), shown - 1);
    trigger("edit.undo");
    EXPECT_EQ(model->rowCount(), shown);
    search->clear();
    EXPECT_EQ(model->rowCount(), workspace().project().variables()->listItemCount());
    ASSERT_TRUE(document().reload());
    EXPECT_EQ(model->rowCount(), workspace().project().variables()->listItemCount());
}

TEST_F(PanelsTest, droppedFilesBecomeImagesOnce)
{
    const qsizetype count = workspace().project().imageResources()->listItemCount();
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString file = folder.filePath(u"boiler.png"_s);
    ASSERT_TRUE(picture.save(file));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file), QUrl::fromLocalFile(path)});
    auto *images = qobject_cast<QListView *>(window->panel(u"panel.images"_s));
    for (int i = 0; i < 2; ++i) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(images->viewport(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(images->viewport(), &drop);
    }
    EXPECT_EQ(workspace().project().imageResources()->listItemCount(), count + 1);
    EXPECT_EQ(document().history().count(), 1);
    trigger("edit.undo");
    EXPECT_EQ(workspace().project().imageResources()->listItemCount(), count);
}

TEST_F(PanelsTest, keysCanBeChanged)
{
    KeysDialog dialog(window->actions(), window.get());
    dialog.show();
    auto *list = dialog.findChild<QTreeWidget *>();
    auto *keys = dialog.findChild<QKeySequenceEdit *>();
    const QAction *duplicate = window->actions().action(u"edit.copies"_s);
    list->setCurrentItem(list->topLevelItem(int(window->actions().all().indexOf(duplicate))));
    keys->setKeySequence(QKeySequence(u"Ctrl+S"_s)); // those of Save
    emit keys->editingFinished();
    EXPECT_EQ(duplicate->shortcut(), QKeySequence(u"Ctrl+D"_s));
    keys->setKeySequence(QKeySequence(u"Ctrl+Shift+D"_s));
    emit keys->editingFinished();
    EXPECT_EQ(duplicate->shortcut(), QKeySequence(u"Ctrl+Shift+D"_s));
    const MainWindow second(window->models());
    EXPECT_EQ(second.actions().action(u"edit.copies"_s)->shortcut(), QKeySequence(u"Ctrl+Shift+D"_s));
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->text() == u"Restore"_s) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    EXPECT_EQ(duplicate->shortcut(), QKeySequence(u"Ctrl+D"_s));
}

} // namespace Halvane::Corvex::Nova::Test
