// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/variables/ImportVariables.h"
#include "corvex/variables/exchange/VariableExport.h"
#include "corvex/variables/exchange/VariableImport.h"

#include "CommandFixture.h"

#include <QStringEncoder>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer::Test {

namespace {

class ImportVariablesTest : public CommandFixture
{
protected:
    QByteArray table() const { return VariableExport::write(*project).files.constFirst().bytes; }

    void set(const QString &name, const QString &id, const QString &text)
    {
        DesignerObject *variable = project->variables()->getListItem(name);
        ASSERT_TRUE(variable->changePropertyValue(variable->getProperty(id), text));
    }

    //! Returns false if the table has problems.
    bool import(const QByteArray &csv)
    {
        VariableImport plan(csv, *project);
        EXPECT_TRUE(plan.invalidValues().isEmpty());
        if (!plan.problems().isEmpty()) {
            return false;
        }
        project->undoStack()->push(new ImportVariables(project->variables(), plan));
        return true;
    }
};

QString textsOf(const QList<CsvText::Problem> &problems)
{
    QStringList texts;
    for (const CsvText::Problem &problem : problems) {
        texts.append(problem.toString());
    }
    return texts.join(u'\n');
}

} // namespace

TEST_F(ImportVariablesTest, ATableRestoresEverythingInOneStep)
{
    add(project->variables(), "StringVariable", "title");
    add(project->variables(), "CANVariable", "engine");
    add(project->variables(), "FtpVariable", "upload");
    set(u"title"_s, u"value"_s, u" a,\"b\"\r\n\u00e4\u20ac;"_s);
    set(u"speed"_s, u"value"_s, u"-2.50"_s);
    set(u"engine"_s, u"value"_s, u"key: 190; value: 1;"_s);
    set(u"upload"_s, u"type"_s, u"SFTP"_s);
    const QByteArray before = table();
    EXPECT_TRUE(import(before));
    EXPECT_EQ(project->undoStack()->index(), 1);
    EXPECT_EQ(table(), before);

    // Into a project with two of the variables, one of them with a different value.
    for (const char *name : {"title", "engine", "upload", "history", "map1"}) {
        delete project->takeListPropertyItem(project->variables(),
                                             project->variables()->getListItem(QString::fromLatin1(name)));
    }
    set(u"speed"_s, u"value"_s, u"7"_s);
    const QByteArray poorer = table();
    EXPECT_TRUE(import(before));
    EXPECT_EQ(table(), before);
    project->undoStack()->undo();
    EXPECT_EQ(table(), poorer);
    project->undoStack()->redo();
    EXPECT_EQ(table(), before);
}

TEST_F(ImportVariablesTest, TablesMayOmitColumnsAndRows)
{
    set(u"history"_s, u"interval"_s, u"4000"_s);
    set(u"speed"_s, u"value"_s, u"5"_s);
    // A spreadsheet writes TRUE, a byte order mark and other line ends; empty fields mean defaults.
    EXPECT_TRUE(import("\xef\xbb\xbfvalue,name,persistent,interval,class\n"
                       "TRUE,on,TRUE,,\n"
                       ",speed,FALSE,,\n"
                       "0,history,false,,LogVariable\n"
                       "1.5,depth,,,NumberVariable\n"));
    const QString text = QString::fromUtf8(table());
    EXPECT_TRUE(text.contains(u"\r\non,BooleanVariable,true,true,"_s)) << qPrintable(text);
    EXPECT_TRUE(text.contains(u"\r\nspeed,NumberVariable,0,false,"_s));
    EXPECT_TRUE(text.contains(u"\r\ndepth,NumberVariable,1.5,false,"_s));
    EXPECT_EQ(project->variables()->getListItem(u"history"_s)->getProperty(u"interval")->valueString(),
              u"5000"_s);
    // The same value in another form is not an error.
    EXPECT_TRUE(import("name,interval\nhistory,05000\n"));
}

TEST_F(ImportVariablesTest, TablesFromSpreadsheetsAreRead)
{
    const QString table = u"Name;VALUE;Class;;\r\nspeed;\"2,5\";;;\r\ndepth;-0,25;NumberVariable;;\r\n"
                          "title;=1,5;StringVariable;;\r\n"_s;
    const auto encoded = [&table](QStringEncoder::Encoding encoding) {
        QStringEncoder encoder(encoding, QStringEncoder::Flag::WriteBom);
        return QByteArray(encoder(table));
    };
    for (const QByteArray &csv : {encoded(QStringEncoder::Utf8), encoded(QStringEncoder::Utf16LE),
                                  encoded(QStringEncoder::Utf16BE), table.toUtf8().replace(';', '\t')}) {
        EXPECT_TRUE(import(csv));
        const QString text = QString::fromUtf8(this->table());
        EXPECT_TRUE(text.contains(u"\r\nspeed,NumberVariable,2.5,"_s)) << qPrintable(text);
        EXPECT_TRUE(text.contains(u"\r\ndepth,NumberVariable,-0.25,"_s));
        EXPECT_TRUE(text.contains(u"\r\ntitle,StringVariable,\"'=1,5\","_s));
        project->undoStack()->undo();
    }
    // A comma that separates columns cannot be a decimal comma. Another separator allows it.
    EXPECT_EQ(VariableImport("name,value\nspeed,\"2,5\"\n", *project).invalidValues().size(), 1);
    EXPECT_EQ(VariableImport("name|value\nspeed|2,5\n", *project, u'|').changes().value(0).after, u"2.5"_s);
    EXPECT_EQ(VariableImport("name,value\nspeed,1e5\n", *project).changes().value(0).after, u"100000"_s);
    EXPECT_EQ(VariableImport("name;value\nspeed;1,5E+1\n", *project).changes().value(0).after, u"1.5E+1"_s);
}

TEST_F(ImportVariablesTest, ReportsWhatItCannotImport)
{
    const struct
    {
        const char *table;
        const char *problem;
    } cases[] = {
        {"", "line 1: The first line must name the columns, each once, including \"name\"."},
        {"value\n1\n", "line 1: The first line must name the columns, each once, including \"name\"."},
        {"name,value,value\n",
         "line 1: The first line must name the columns, each once, including \"name\"."},
        {"name\n\xff\n",
         "line 2: The table is neither in UTF-8 nor in UTF-16 with a byte order mark. Save it "
         "as \"CSV UTF-8\"."},
        {"name\rspeed\r",
         "line 1: The lines end with only a carriage return. Save the table with LF or CRLF line endings."},
        {"name,value\nspeed\n", "line 2: The row has 1 fields for 2 columns."},
        {"name\nspeed\nspeed\n", "line 3: \"speed\" is also in line 2."},
        {"name,value\nnew,1\n", "line 2: \"new\" is not in the project. Give a class to add it."},
        {"name,class\nnew,Rectangle\n", "line 2: \"Rectangle\" is not a class of variables."},
        {"name,class\nnew,Number\n", "line 2: \"Number\" is not a class of variables."},
        {"name,class\n,NumberVariable\n", "line 2: \"\" is not a valid name for a variable."},
        {"name,class\nspeed,LogVariable\n",
         "line 2: \"speed\" is a NumberVariable and cannot become a LogVariable."},
        {"name,interval\nhistory,soon\n", "line 2: history.interval: \"soon\" is not a valid value."},
        {"name,value\non,maybe\n", "line 2: on.value: \"maybe\" is not a valid value."},
        {"name,persistent\nhistory,true\n", "line 2: history.persistent: \"true\" is not a valid value."},
        {"name,interval\nspeed,1\n", "line 2: NumberVariable has no property \"interval\"."},
        {"name,id\nspeed,other\n", "line 2: NumberVariable has no property \"id\"."},
    };
    const QByteArray before = table();
    for (const auto &[csv, problem] : cases) {
        EXPECT_EQ(textsOf(VariableImport(csv, *project).problems()), QString::fromLatin1(problem)) << csv;
        EXPECT_FALSE(import(csv));
    }
    EXPECT_EQ(table(), before);
    for (const char *value : {"16777216.0", "many", "1e50"}) {
        const VariableImport invalid(QByteArray("name,value\nspeed,") + value + '\n', *project);
        EXPECT_EQ(textsOf(invalid.problems()), QString());
        EXPECT_EQ(invalid.invalidValues().size(), 1) << value;
    }
    EXPECT_EQ(textsOf(VariableImport("name,value\nspeed,-Infinity\n", *project).invalidValues()), QString());
    // All errors at once.
    EXPECT_EQ(textsOf(VariableImport("name,value\nspeed,1,2\n\"on\"x,1\nnew,1\n", *project).problems()),
              u"line 3: A field in quotes is not closed, or text follows its closing quote.\n"
              "line 2: The row has 3 fields for 2 columns.\n"
              "line 4: \"new\" is not in the project. Give a class to add it."_s);
}

} // namespace Halvane::Corvex::Designer::Test
