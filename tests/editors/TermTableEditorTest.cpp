// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/editors/CANVariableEditor.h"
#include "corvex/widgets/CellTable.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/KdTableView.h"
#include "corvex/widgets/SearchLine.h"

#include "EditorFixture.h"

#include <QClipboard>
#include <QDialog>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

class TermTableEditorTest : public EditorFixture
{
protected:
    //! The view of a new object's table, with the focus.
    KdTableView *open(const char *className, const char *name, const char *id)
    {
        const SharedProperty variables = document->project().variables();
        object = variables->getListItem(QString::fromLatin1(name));
        object = object ? object : add(variables, className, name);
        editor = static_cast<TermTableEditor *>(edit({object}, id));
        return editor->view();
    }
    static void paste(KdTableView *view, const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        view->setFocus();
        QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
    }
    static CellTable *table(const KdTableView *view) { return static_cast<CellTable *>(view->model()); }

    DesignerObject *object = nullptr;
    TermTableEditor *editor = nullptr;
};

TEST_F(TermTableEditorTest, ASpreadsheetIsPastedInOneStepAndContinues)
{
    KdTableView *view = open("MappingVariable", "map1", "holdingRegMap");
    const QString before = text();
    paste(view, u"40001\tspeed\r\n40005\tspeed\n"_s);
    EXPECT_EQ(value(object, "holdingRegMap"), u"<02049C41><0406speed><02049C45><0406speed>"_s);
    EXPECT_TRUE(editor->errorString().isEmpty()) << qPrintable(editor->errorString());

    QTest::keyClick(view, Qt::Key_Insert); // the next address
    EXPECT_EQ(table(view)->index(table(view)->rowCount() - 1, 0).data().toString(), u"40006"_s);
    ASSERT_TRUE(document->undo());
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
    EXPECT_EQ(table(view)->rowCount(), 0);
}

TEST_F(TermTableEditorTest, TextsThatDoNotFitStayInTheirCells)
{
    KdTableView *view = open("MappingVariable", "map1", "holdingRegMap");
    const QString before = text();
    paste(view, u"40001\tspeeed\n7\tspeed"_s);
    EXPECT_EQ(text(), before);
    EXPECT_EQ(table(view)->index(0, 1).data(), u"speeed"_s);
    EXPECT_TRUE(editor->errorString().contains(u"Row 1, Source"_s)) << qPrintable(editor->errorString());
    EXPECT_TRUE(editor->errorString().contains(u"speed"_s));
    table(view)->enterCells({{0, 1, u"speed"_s}});
    EXPECT_TRUE(editor->errorString().contains(u"40001 to 49999"_s)) << qPrintable(editor->errorString());
    table(view)->enterCells({{1, 0, u"40002"_s}});
    EXPECT_EQ(value(object, "holdingRegMap"), u"<02049C41><0406speed><02049C42><0406speed>"_s);
}

TEST_F(TermTableEditorTest, AddressesFillDownAndRepeatedOnesAreMarked)
{
    KdTableView *view = open("MappingVariable", "map1", "coilMap");
    paste(view, u"1\ton\n1\ton\n1\ton"_s);
    EXPECT_FALSE(table(view)->index(0, 0).data(Qt::ToolTipRole).toString().isEmpty());
    EXPECT_FALSE(editor->row().error.isEmpty());
    view->selectColumn(0);
    QTest::keyClick(view, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(value(object, "coilMap"), u"<02041><0403on><02042><0403on><02043><0403on>"_s);
    EXPECT_TRUE(table(view)->index(0, 0).data(Qt::ToolTipRole).toString().isEmpty());
    EXPECT_TRUE(editor->row().error.isEmpty());
    view->selectionModel()->select(table(view)->index(1, 0),
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    QTest::keyClick(view, Qt::Key_Delete);
    EXPECT_EQ(value(object, "coilMap"), u"<02041><0403on><02043><0403on>"_s);
}

TEST_F(TermTableEditorTest, ListsThatAreIncompleteOrOfOtherTypesAreKept)
{
    KdTableView *view = open("MappingVariable", "map1", "holdingRegMap");
    const QString odd = u"<02049C41><0406speed><0207QUJD><05021sqrt><02049C43>"_s;
    ASSERT_TRUE(push(Commands::changeOf({{object->getProperty(u"holdingRegMap"_s), odd}})));
    table(view)->enterCells({{0, 0, u"40009"_s}});
    QString expected = odd;
    EXPECT_EQ(value(object, "holdingRegMap"), expected.replace(u"9C41"_s, u"9C49"_s));
}

TEST_F(TermTableEditorTest, ACanVariableHasItsGroupAndItsParameters)
{
    KdTableView *view = open("CANVariable", "engine", "parameterMap");
    paste(view, u"190\trpm\t4\t1\t16\t0\t0\t8031,875\t0.125"_s);
    const QString stored = value(object, "parameterMap");
    EXPECT_TRUE(editor->row().error.isEmpty()) << qPrintable(editor->row().error);
    EXPECT_TRUE(stored.startsWith(u"<02040><02046><02040><0204BE>"_s)) << qPrintable(stored);
    table(view)->addRow(1);
    table(view)->enterCells({{1, 2, u"5"_s}});
    EXPECT_FALSE(table(view)->index(1, 2).data(Qt::ToolTipRole).toString().isEmpty()) << "the bits overlap";
    auto *pgn = editor->findChildren<KdLineEdit *>().constFirst();
    pgn->setFocus();
    type(u"0xF004"_s);
    EXPECT_TRUE(value(object, "parameterMap").startsWith(u"<0204F004>"_s));
    type(u"300000"_s);
    EXPECT_TRUE(editor->errorString().contains(u"0 to 262143"_s)) << qPrintable(editor->errorString());
}

TEST_F(TermTableEditorTest, AMessageOfACanDatabaseBecomesOneStep)
{
    KdTableView *view = open("CANVariable", "engine", "parameterMap");
    auto *can = qobject_cast<CANVariableEditor *>(editor);
    ASSERT_TRUE(can);
    const QString path = folder.filePath(u"engine.dbc"_s);
    can->importFrom(path);
    EXPECT_TRUE(editor->errorString().contains(path)) << qPrintable(editor->errorString());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("BO_ 100 Short: 8 X\n"
               "BO_ 2365193470 EngineTemperature: 8 X\n SG_ Coolant : 0|8@1+ (1,-40) [-40|210] \"deg\" X\n"
               "BO_ 2364540158 EEC1: 8 X\n SG_ Speed : 24|16@1+ (0.125,0) [0|8031.875] \"rpm\" X\n"
               " SG_ Torque : 16|8@1- (1,0) [0|1] \"\" X\nBA_ \"SPN\" SG_ 2364540158 Speed 190;\n");
    file.close();
    const QString before = text();
    can->importFrom(path);
    auto *dialog = editor->findChild<QDialog *>();
    ASSERT_TRUE(dialog);
    QApplication::setActiveWindow(dialog);
    auto *search = dialog->findChild<SearchLine *>();
    const auto *note = dialog->findChild<QLabel *>(u"note"_s);
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible()) << "a message that cannot be used";
    EXPECT_TRUE(note->text().contains(u"11 bits"_s)) << qPrintable(note->text());
    QTest::keyClicks(search, u"190"_s);
    EXPECT_TRUE(note->text().contains(u"1 of 2 signals"_s)) << qPrintable(note->text());
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(table(view)->rowCount(), 1);
    EXPECT_EQ(table(view)->index(0, 4).data().toString(), u"16"_s);
    EXPECT_TRUE(value(object, "parameterMap").startsWith(u"<0204F004><02043><02040><0204BE>"_s));
    EXPECT_TRUE(editor->row().error.isEmpty()) << qPrintable(editor->row().error);
    ASSERT_TRUE(document->undo());
    EXPECT_EQ(text(), before);
    ASSERT_TRUE(document->redo());

    open("CANVariable", "other", "parameterMap");
    static_cast<CANVariableEditor *>(editor)->importFrom(path);
    dialog = editor->findChildren<QDialog *>().constLast();
    QTest::keyClicks(dialog->findChild<SearchLine *>(), u"eec1"_s);
    note = dialog->findChild<QLabel *>(u"note"_s);
    EXPECT_TRUE(note->text().contains(u"61444 is also in engine"_s)) << qPrintable(note->text());

    PropertyEditor *both = edit({variable("engine"), variable("other")}, "parameterMap");
    EXPECT_FALSE(both->findChild<KdLineEdit *>()->isEnabled()) << "its entry would replace both tables";
}

TEST_F(TermTableEditorTest, BACnetPropertiesHaveNamesNumbersAndConstants)
{
    KdTableView *view = open("BACnetObject", "point", "properties");
    paste(view, u"Present-Value\treal\tspeed\n4711\tboolean\ttrue\n"_s);
    EXPECT_EQ(
        value(object, "properties"),
        u"<0207cHJlc2VudC12YWx1ZQ==><0207cmVhbA==><0406speed><0207NDcxMQ==><0207Ym9vbGVhbg==><02031>"_s);
    EXPECT_EQ(table(view)->index(0, 0).data(), u"Present Value"_s);
}

} // namespace Halvane::Corvex::Designer::Test
