// SPDX-License-Identifier: MIT
#include "Program.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

//! Runs a shell command.
ProgramRun shell(const QString &line, const QStringList &variables = {})
{
    QProcess process;
    process.setEnvironment(QProcess::systemEnvironment() + variables
                           + QStringList{u"CORVEX="_s + QStringLiteral(CORVEX_PROGRAM)});
    process.start(u"bash"_s, {u"-c"_s, line});
    process.waitForFinished(60'000);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

TEST(CommandLine, PrintsItsVersionAndItsVerbs)
{
    const ProgramRun version = corvex({u"--version"_s});
    EXPECT_EQ(version.out, u"corvex " CORVEX_VERSION "\n"_s);
    EXPECT_EQ(version.code, 0);

    const QStringList verbs{
        u"new"_s,    u"info"_s,        u"tree"_s,  u"uses"_s,  u"diff"_s,    u"edit"_s,      u"rename"_s,
        u"check"_s,  u"approve"_s,     u"fmt"_s,   u"build"_s, u"preview"_s, u"render"_s,    u"export"_s,
        u"import"_s, u"config-dump"_s, u"value"_s, u"expr"_s,  u"classes"_s, u"functions"_s, u"help"_s};
    const ProgramRun list = corvex({u"help"_s});
    EXPECT_EQ(list.code, 0);
    for (const QString &verb : verbs) {
        EXPECT_THAT(list.out.toStdString(), HasSubstr(u"\n  %1 "_s.arg(verb).toStdString()));
        const ProgramRun page = corvex({u"help"_s, verb});
        EXPECT_THAT(page.out.toStdString(), StartsWith(u"corvex %1 "_s.arg(verb).toStdString()));
        EXPECT_EQ(page.code, 0);
        EXPECT_EQ(corvex({verb, u"--help"_s}).out, page.out);
    }
    EXPECT_EQ(corvex({u"--help"_s}).out, list.out);
    const QJsonArray pages = corvex({u"help"_s, u"--json"_s}).json()[u"verbs"_s].toArray();
    EXPECT_EQ(pages.size(), verbs.size());
    EXPECT_EQ(pages.at(verbs.indexOf(u"check"_s))[u"usage"_s].toString(), u"corvex check FILE..."_s);
}

TEST(CommandLine, RefusesWrongUsage)
{
    struct Case
    {
        QStringList arguments;
        QString error;
    };
    const Case cases[] = {
        {{}, u"A verb is missing. \"corvex help\" lists them all."_s},
        {{u"chekc"_s},
         u"There is no verb \"chekc\"; did you mean \"check\"? \"corvex help\" lists them all."_s},
        {{u"%1 %2"_s}, u"There is no verb \"%1 %2\". \"corvex help\" lists them all."_s},
        {{u"--versions"_s}, u"There is no verb \"--versions\". \"corvex help\" lists them all."_s},
        {{u"help"_s, u"me"_s}, u"There is no verb \"me\". \"corvex help\" lists them all."_s},
        {{u"info"_s}, u"\"info\" needs more arguments: corvex info FILE. See \"corvex help info\"."_s},
        {{u"info"_s, u"a"_s, u"b c"_s},
         u"\"b c\" is an unexpected argument. Put quotes around an argument that contains spaces. See "
         "\"corvex help info\"."_s},
        {{u"info"_s, u"--colour"_s, u"x"_s},
         u"Unknown option 'colour'. Put \"--\" before an argument that begins with \"-\". "
         "See \"corvex help info\"."_s},
        {{u"value"_s, u"number"_s, u"1"_s},
         u"There is no kind of values \"number\". Available: bool, int, "_s},
        {{u"expr"_s, u"logic"_s, u"1"_s},
         u"There is no kind of expressions \"logic\". Available: general, assign, bool, math, string. See "
         "\"corvex help expr\"."_s},
        {{u"expr"_s, u"bool"_s, u"0203t"_s, u"--output"_s, u"text"_s},
         u"There is no type \"text\". Available: raw, string, boolean, integer, float, number, color. See "
         "\"corvex help expr\"."_s},
        {{u"classes"_s, u"Rectangel"_s},
         u"There is no class \"Rectangel\"; did you mean \"Rectangle\"? \"corvex classes\" lists them all."_s},
        {{u"classes"_s, u"Rectangle.sise"_s},
         u"There is no property \"sise\"; did you mean \"size\"? \"corvex classes Rectangle\" shows those of "
         "the class."_s},
        {{u"expr"_s, u"bool"_s, u"0203t"_s, u"--output"_s}, u"Missing value after '--output'."_s},
    };
    for (const auto &[arguments, error] : cases) {
        const ProgramRun run = corvex(arguments);
        EXPECT_EQ(run.code, 2) << qPrintable(arguments.join(u' '));
        EXPECT_EQ(run.out, QString());
        EXPECT_THAT(run.error.toStdString(), StartsWith((u"corvex: "_s + error).toStdString()));
    }
}

TEST(CommandLine, HandlesClosedAndFullPipes)
{
    // The reader is gone before anything is written.
    EXPECT_EQ(shell(u"set -o pipefail; { sleep 0.2; \"$CORVEX\" help; } | true"_s).code, 0);
    const ProgramRun full = shell(u"\"$CORVEX\" help >/dev/full"_s);
    EXPECT_EQ(full.code, 3);
    EXPECT_EQ(full.error, u"corvex: The result cannot be written: No space left on device.\n"_s);
}

TEST(CommandLine, ReadsProjectsFromStandardInput)
{
    const QString station = QStringLiteral(CORVEX_EXAMPLES "/PumpStation/PumpStation.kdproj");
    EXPECT_EQ(shell(u"\"$CORVEX\" diff - '%1' <'%1'"_s.arg(station)).out, QString());
    EXPECT_EQ(shell(u"\"$CORVEX\" tree - startLevel.value <'%1'"_s.arg(station)).out, u"70\n"_s);
    const ProgramRun cut = shell(u"head -n 100 '%1' | \"$CORVEX\" info -"_s.arg(station));
    EXPECT_TRUE(cut.error.startsWith(u"corvex: -:101:1: "_s)) << qPrintable(cut.error);
    const ProgramRun renamed = shell(u"\"$CORVEX\" rename - startLevel beginLevel <'%1'"_s.arg(station));
    EXPECT_EQ(renamed.code, 3);
    EXPECT_TRUE(renamed.error.contains(u"Name its file instead."_s)) << qPrintable(renamed.error);
}

TEST(CommandLine, WritesUtf8WhateverTheLocale)
{
    const ProgramRun run = shell(u"\"$CORVEX\" value string 'ä€😀'"_s, {u"LC_ALL=C"_s});
    EXPECT_EQ(run.out, u"ä€😀\n"_s);
    EXPECT_EQ(run.error, QString());
}
