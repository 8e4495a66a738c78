// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QDir>
#include <QProcess>

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

const QString pump = u"Pump/Pump.kdproj"_s;

} // namespace

TEST(ProjectFile, IsRefusedWithPlaceAndReason)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::goodElements());
    sandbox.write(u"empty"_s, "");
    sandbox.write(u"cut"_s, sandbox.read(pump).first(900));
    sandbox.write(u"text"_s, "hello\n");
    sandbox.write(u"latin1"_s, "<?xml version=\"1.0\"?>\n<Project>\xE4</Project>");
    sandbox.write(u"utf16"_s, QByteArray("\xFF\xFE<\0P\0", 6));
    sandbox.write(u"root"_s, "<Screen/>");
    sandbox.write(u"bomb"_s, "<!DOCTYPE a [<!ENTITY b \"bbb\">]>\n<Project/>");
    sandbox.write(u"deep"_s, "<Project>" + QByteArray("<a>").repeated(100'000));
    sandbox.write(u"huge"_s, "<Project><Properties><Property name=\"id\" value=\""
                                 + QByteArray(20'000'000, 'a') + "\"/></Properties></Project>");
    const struct
    {
        QString file;
        QString error;
    } cases[] = {
        {u"nix %1"_s,
         u"The file \"nix %1\" does not exist. Name the .kdproj file of a project; \"corvex new\" creates one."_s},
        {u"Pump"_s, u"\"Pump\" is not a file. Did you mean \"Pump/Pump.kdproj\"?"_s},
        {u"."_s, u"\".\" is not a file. Name the .kdproj file of a project."_s},
        {u"/dev/null"_s, u"\"/dev/null\" is not a file. Name the .kdproj file of a project."_s},
        {u"empty"_s,
         u"empty:1:1: The text ends before its root element does; it is empty or was cut off. Repair the file at that place, or restore it from a copy."_s},
        {u"cut"_s, u"cut:19:"_s},
        {u"text"_s, u"text:1:1: This is not XML."_s},
        {u"latin1"_s, u"latin1:2:10: The bytes here are not UTF-8"_s},
        {u"utf16"_s, u"utf16:1:1: The text is UTF-16; only UTF-8 is supported."_s},
        {u"root"_s, u"root:1:1: The root element is \"Screen\", but \"Project\" is expected."_s},
        {u"bomb"_s, u"bomb:1:1: Document types and entities are not accepted."_s},
        {u"deep"_s, u"deep:1:1543: Elements are nested more than 512 levels deep."_s},
        {u"huge"_s, u"huge:1:22: A value is longer than 16 MB."_s},
    };
    for (const auto &[file, error] : cases) {
        const ProgramRun run = sandbox.run({u"check"_s, file});
        EXPECT_EQ(run.code, 3) << qPrintable(file);
        EXPECT_EQ(run.out, QString());
        EXPECT_EQ(run.error.first(std::min(run.error.size(), error.size() + 8)), u"corvex: "_s + error);
    }
    EXPECT_EQ(sandbox.run({u"build"_s, u"cut"_s, u"-o"_s, u"out"_s}).code, 3);
    EXPECT_FALSE(QDir(sandbox.path(u"out"_s)).exists());
}

TEST(FmtVerb, WritesTheCanonicalFormAndNothingElse)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::goodElements()
                        + Sandbox::object("Gauge", "gauge1", Sandbox::value("needle", "red")));
    const QByteArray before = sandbox.read(pump);
    const QString place = u"%1:%2: "_s.arg(pump).arg(sandbox.lineOf(pump, "\"elements\""));
    const ProgramRun differs = sandbox.run({u"fmt"_s, u"--check"_s, pump});
    EXPECT_EQ(differs.out, place + u"not in the canonical form\n"_s);
    EXPECT_EQ(differs.code, 1);
    EXPECT_EQ(sandbox.read(pump), before);

    const ProgramRun written = sandbox.run({u"fmt"_s, pump});
    EXPECT_EQ(written.out, place + u"written in the canonical form\n"_s);
    EXPECT_EQ(written.code, 0);
    const QByteArray canonical = sandbox.read(pump);
    EXPECT_THAT(canonical.toStdString(), HasSubstr("<Property name=\"needle\" value=\"red\"/>\r\n"));
    const ProgramRun again = sandbox.run({u"fmt"_s, u"--check"_s, pump});
    EXPECT_EQ(again.out + again.error, QString());
    EXPECT_EQ(again.code, 0);
    EXPECT_EQ(sandbox.run({u"fmt"_s, pump}).out, QString());
    EXPECT_EQ(sandbox.read(pump), canonical);

    // Version control may have converted all line ends, but not only some of them.
    const QByteArray unixEnds = QByteArray(canonical).replace("\r\n", "\n");
    sandbox.write(pump, unixEnds);
    EXPECT_EQ(sandbox.run({u"fmt"_s, u"--check"_s, pump}).code, 0);
    sandbox.write(pump, QByteArray(unixEnds).replace("name=\"id\"", "name=\"id\" "));
    EXPECT_EQ(sandbox.run({u"fmt"_s, pump}).code, 0);
    EXPECT_EQ(sandbox.read(pump), unixEnds);
    sandbox.write(pump, QByteArray(canonical).replace("</List>\r\n", "</List>\n"));
    EXPECT_EQ(sandbox.run({u"fmt"_s, u"--check"_s, pump}).code, 1);
}

TEST(FmtVerb, FindsADifferenceWhereverItIs)
{
    const Sandbox sandbox;
    QByteArray elements = Sandbox::goodElements();
    for (const char *name : {"long1", "long2", "long3"}) {
        elements += Sandbox::object("Text", name, Sandbox::value("text", QByteArray(300'000, 'x')));
    }
    sandbox.makeProject(elements);
    ASSERT_EQ(sandbox.run({u"fmt"_s, pump}).code, 0);
    const QByteArray canonical = sandbox.read(pump);
    const auto changed = [&canonical](const QByteArray &text, const QByteArray &other) {
        return QByteArray(canonical).replace(text, other);
    };
    const QByteArray cases[] = {
        changed("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n", {}),
        changed("name: long3;", "name:long3;"),
        canonical + "\n",
        canonical.chopped(2),
    };
    for (const QByteArray &text : cases) {
        sandbox.write(pump, text);
        const auto end = std::ranges::mismatch(text, canonical).in1;
        const QString line = QString::number(std::count(text.begin(), end, '\n') + 1);
        EXPECT_EQ(sandbox.run({u"fmt"_s, u"--check"_s, pump}).out,
                  u"%1:%2: not in the canonical form\n"_s.arg(pump, line));
        EXPECT_EQ(sandbox.read(pump), text);
        EXPECT_EQ(sandbox.run({u"fmt"_s, pump}).code, 0);
        EXPECT_EQ(sandbox.read(pump), canonical) << "line " << line.toStdString();
    }
}

TEST(FmtVerb, LosesNothingUnlessForced)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::object("Text", "title", Sandbox::value("shadow", "2")));
    const QByteArray before = sandbox.read(pump);
    const ProgramRun refused = sandbox.run({u"fmt"_s, pump});
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.out, QString());
    EXPECT_EQ(refused.error, u"Pump/Pump.kdproj:%1:1: Main.title: The property \"shadow\" is unknown.\n"
                             "corvex: \"Pump/Pump.kdproj\" contains parts that this version does not know "
                             "and would lose, so it was not "
                             "written. Fix these places, or write anyway with --force.\n"_s.arg(
                                 sandbox.lineOf(pump, "shadow")));
    EXPECT_EQ(sandbox.read(pump), before);
    EXPECT_EQ(sandbox.run({u"fmt"_s, u"--force"_s, pump}).code, 0);
    EXPECT_THAT(sandbox.read(pump).toStdString(), testing::Not(HasSubstr("shadow")));

    // Of two objects in the same place, the second would replace the first.
    const QByteArray twice = sandbox.read(pump).replace("</Object>", "<Configuration/></Object>");
    sandbox.write(pump, twice);
    EXPECT_THAT(sandbox.run({u"fmt"_s, pump}).error.toStdString(), HasSubstr("can have only one object"));
    EXPECT_EQ(sandbox.read(pump), twice);
}

TEST(FmtVerb, LeavesTheFileUnchangedOnAFullDisk)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::goodElements());
    const QByteArray before = sandbox.read(pump);
    // The output would go into the file that gets the number of a closed stream.
    for (const QString &streams : {QString(), u" >&-"_s, u" 2>&-"_s}) {
        QProcess shell;
        shell.start(u"bash"_s, {u"-c"_s, u"ulimit -f 2; exec '%1' fmt '%2'%3"_s.arg(
                                             QStringLiteral(CORVEX_PROGRAM), sandbox.path(pump), streams)});
        ASSERT_TRUE(shell.waitForFinished(60'000));
        EXPECT_EQ(shell.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(shell.exitCode(), 3);
        const QString told = QString::fromUtf8(shell.readAllStandardError());
        EXPECT_EQ(told.contains(sandbox.path(pump)), !streams.startsWith(u" 2"_s)) << told.toStdString();
        EXPECT_EQ(sandbox.read(pump), before);
        EXPECT_EQ(sandbox.files(u"Pump"_s), QStringList{u"Pump.kdproj"_s});
    }
}
