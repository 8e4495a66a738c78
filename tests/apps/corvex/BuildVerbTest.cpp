// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonObject>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;

namespace {

const QString pump = u"Pump/Pump.kdproj"_s;
const QStringList builtFiles{u"project/Project.kdproj.zip"_s, u"project/bacConfig.kdrc"_s,
                             u"project/canConfig.kdrc"_s,     u"project/config.kdrc"_s,
                             u"project/pump.png"_s,           u"project/qml_Main.qml"_s};

//! A sandbox with a project that can be built.
class BuildVerb : public testing::Test
{
protected:
    BuildVerb()
    {
        sandbox.makeProject(Sandbox::object("Text", "title", Sandbox::value("text", "Pump %1")), {},
                            Sandbox::object("ImageResource", "pump.png", {}, "Project"));
        QDir().mkpath(sandbox.path(u"Pump/Images"_s));
        QImage image(2, 2, QImage::Format_RGB32);
        image.fill(Qt::red);
        image.save(sandbox.path(u"Pump/Images/pump.png"_s));
    }

    ProgramRun build(const QString &folder, const QStringList &options = {}) const
    {
        return sandbox.run(QStringList{u"build"_s, pump, u"-o"_s, folder} + options);
    }

    //! Removes the title: a screen without elements is a problem.
    void spoil() const
    {
        QByteArray text = sandbox.read(pump);
        const qsizetype start = text.indexOf("<Text>");
        text.remove(start, text.indexOf("</Text>") + 7 - start);
        sandbox.write(pump, text);
    }

    Sandbox sandbox;
};

} // namespace

TEST_F(BuildVerb, PutsTheBuildIntoItsFolder)
{
    const ProgramRun first = build(u"out/new/%1 ä"_s);
    EXPECT_EQ(first.out, u"out/new/%1 ä/project: 6 files\n"_s);
    EXPECT_EQ(first.error, QString());
    EXPECT_EQ(first.code, 0);
    EXPECT_EQ(sandbox.files(u"out/new/%1 ä"_s), builtFiles);
    EXPECT_TRUE(sandbox.read(u"out/new/%1 ä/project/qml_Main.qml"_s).contains("Pump %1"));

    // Again, over the earlier build and into an empty folder.
    sandbox.write(u"out/new/%1 ä/project/qml_Gone.qml"_s, "");
    QDir().mkpath(sandbox.path(u"empty"_s));
    EXPECT_EQ(build(u"out/new/%1 ä"_s).code, 0);
    EXPECT_EQ(sandbox.files(u"out/new/%1 ä"_s), builtFiles);
    const QJsonValue json = build(u"empty/"_s, {u"--json"_s}).json();
    EXPECT_EQ(json[u"folder"_s].toString(), u"empty/project"_s);
    EXPECT_EQ(json[u"files"_s].toArray().size(), 6);
    EXPECT_EQ(
        QDir(sandbox.path(u"empty"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{u"project"_s});
}

TEST_F(BuildVerb, ContainsOnlyResourcesOfTheProject)
{
    sandbox.write(u"Pump/Images/notes.txt"_s, "mine");
    sandbox.write(u"Pump/Images/old.png"_s, "mine");
    EXPECT_EQ(build(u"out"_s).code, 0);
    EXPECT_EQ(sandbox.files(u"out"_s), builtFiles);
    // A file that the project no longer names is still part of the earlier build.
    sandbox.write(u"Pump/Images/odd.dat"_s, "odd");
    const QByteArray text = sandbox.read(pump);
    sandbox.write(pump, QByteArray(text).replace("pump.png", "odd.dat"));
    EXPECT_EQ(build(u"out"_s, {u"--force"_s}).code, 0);
    EXPECT_TRUE(sandbox.files(u"out"_s).contains(u"project/odd.dat"_s));
    sandbox.write(pump, text);
    EXPECT_EQ(build(u"out"_s).code, 0);
    EXPECT_EQ(sandbox.files(u"out"_s), builtFiles);
}

TEST_F(BuildVerb, LeavesNoTraceElsewhere)
{
    const QDir builds(u"/tmp/corvex-%1/Halvane/CorvexNova/Designer"_s.arg(QString::number(getuid())));
    const QStringList before = builds.entryList();
    // The remains of a killed build are removed, too.
    ASSERT_TRUE(builds.mkpath(u"{5d4a1c1e-0000-4000-8000-000000000000}/project"_s));
    ASSERT_EQ(build(u"out"_s).code, 0);
    sandbox.write(u"mine/letter.txt"_s, "");
    ASSERT_EQ(build(u"mine"_s).code, 3);
    EXPECT_EQ(builds.entryList(), before);
}

TEST_F(BuildVerb, ReplacesNothingButEarlierBuilds)
{
    ASSERT_EQ(build(u"built"_s).code, 0);
    sandbox.write(u"built/project/notes.txt"_s, "mine");
    sandbox.write(u"other/letter.txt"_s, "mine");
    sandbox.write(u"beside/project/Project.kdproj.zip"_s, "");
    sandbox.write(u"beside/.hidden"_s, "mine");
    sandbox.write(u"deep/project/Project.kdproj.zip"_s, "");
    sandbox.write(u"deep/project/sub/a.qml"_s, "mine");
    sandbox.write(u"code/project/qml_Main.qml"_s, "mine");
    sandbox.write(u"file"_s, "mine");
    sandbox.write(u"link/target/Project.kdproj.zip"_s, "mine");
    QFile::link(u"link/target"_s, sandbox.path(u"linked"_s));
    QFile::link(u"Pump"_s, sandbox.path(u"into"_s));
    QDir().mkpath(sandbox.path(u"aside"_s));
    QFile::link(u"../link/target"_s, sandbox.path(u"aside/project"_s));
    const struct
    {
        QString folder;
        QString error;
    } cases[] = {
        {u"built"_s, u"\"built\" contains \"project/notes.txt\", which is not part of a build"_s},
        {u"other"_s, u"\"other\" contains \"letter.txt\", which is not part of a build"_s},
        {u"beside"_s, u"\"beside\" contains \".hidden\", which is not part of a build"_s},
        {u"deep"_s, u"\"deep\" contains \"project/sub\", which is not part of a build"_s},
        {u"code"_s, u"\"code\" contains \"project\", which is not part of a build"_s},
        {u"aside"_s, u"\"aside\" contains \"project\", which is not part of a build"_s},
        {u"linked"_s, u"\"linked\" contains \"Project.kdproj.zip\", which is not part of a build"_s},
        {u"Pump"_s, u"\"Pump\" is inside the project's own folder"_s},
        {u"into/out"_s, u"\"into/out\" is inside the project's own folder"_s},
        {u"file"_s, u"\"file\" is not a folder."_s},
        {u"file/below/it"_s, u"The folder \"file/below/it\" cannot be created: "_s},
        {u"/proc/nowhere"_s, u"The folder \"/proc/nowhere\" cannot be created: "_s},
    };
    const QStringList before = sandbox.files(u"."_s);
    for (const auto &[folder, error] : cases) {
        const ProgramRun run = build(folder, {u"--force"_s});
        EXPECT_EQ(run.code, 3) << qPrintable(folder);
        EXPECT_EQ(run.out, QString());
        EXPECT_TRUE(run.error.startsWith(u"corvex: "_s + error)) << run.error.toStdString();
    }
    EXPECT_EQ(sandbox.files(u"."_s), before);
}

TEST_F(BuildVerb, RemovesTheRemainsOfAnInterruptedBuild)
{
    ASSERT_EQ(build(u"out"_s).code, 0);
    sandbox.write(u"out/.corvex-build-a1/project/qml_Main.qml"_s, "half");
    sandbox.write(u"out/.corvex-build-b2/project/qml_Main.qml"_s, "whole");
    QDir().rename(sandbox.path(u"out/project"_s), sandbox.path(u"out/.corvex-build-b2/previous"_s));
    const ProgramRun run = build(u"out"_s);
    EXPECT_EQ(run.error, QString());
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(sandbox.files(u"out"_s), builtFiles);
}

TEST_F(BuildVerb, OnlyOneBuildAtATimeWritesToAFolder)
{
    ASSERT_EQ(build(u"out"_s).code, 0);
    const int folder = open(qPrintable(sandbox.path(u"out"_s)), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(flock(folder, LOCK_EX), 0);
    const ProgramRun run = build(u"out"_s);
    close(folder);
    EXPECT_EQ(run.error, u"corvex: Another build is writing to \"out\". Wait until it has finished.\n"_s);
    EXPECT_EQ(run.code, 3);
    EXPECT_EQ(sandbox.files(u"out"_s), builtFiles);
}

TEST_F(BuildVerb, RefusesProblemsUnlessForced)
{
    spoil();
    const QString problem = u"Main: elements: At least one element is required.\n"_s;
    const ProgramRun refused = build(u"out"_s);
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.out, QString());
    EXPECT_EQ(refused.error,
              problem
                  + u"corvex: \"Pump/Pump.kdproj\" has problems (1) and was not built. Fix them, or "
                    "build anyway with --force.\n"_s);
    EXPECT_FALSE(QFileInfo::exists(sandbox.path(u"out"_s)));
    EXPECT_EQ(build(u"out"_s, {u"--json"_s}).json()[u"problems"_s].toArray().size(), 1);
    const ProgramRun forced = build(u"out"_s, {u"--force"_s});
    EXPECT_EQ(forced.code, 0);
    EXPECT_EQ(forced.error, problem);
    EXPECT_EQ(sandbox.files(u"out"_s), builtFiles);
}

TEST_F(BuildVerb, CrossesFileSystems)
{
    const QFileInfo other(u"/dev/shm"_s);
    if (!other.isWritable()) {
        GTEST_SKIP() << "there is no second file system";
    }
    const QTemporaryDir folder(u"/dev/shm/corvex-test-XXXXXX"_s);
    EXPECT_EQ(build(folder.path()).code, 0);
    EXPECT_EQ(QDir(folder.path() + u"/project"_s).entryList(QDir::Files).size(), builtFiles.size());
}
