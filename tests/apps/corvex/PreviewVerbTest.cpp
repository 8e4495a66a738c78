// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>
#include <sys/stat.h>
#ifdef Q_OS_LINUX
#include <sys/syscall.h>
#include <unistd.h>
#endif

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;

namespace {

const QString pump = u"Pump/Pump.kdproj"_s;

class PreviewVerb : public testing::Test
{
protected:
    PreviewVerb()
    {
        sandbox.makeProject(
            Sandbox::object("Text", "title", Sandbox::value("textBinding", "0406speed")),
            Sandbox::object("NumberVariable", "speed",
                            Sandbox::value("value", "7") + Sandbox::value("persistent", "true"), "Project"));
    }

    ProgramRun preview(const QString &file, const QStringList &options) const
    {
        return sandbox.run(QStringList{u"preview"_s, file} + options);
    }

    Sandbox sandbox;
};

bool hasLandlock()
{
#ifdef SYS_landlock_create_ruleset
    constexpr unsigned int askForVersion = 1;
    return syscall(SYS_landlock_create_ruleset, nullptr, 0, askForVersion) > 0;
#else
    return false;
#endif
}

} // namespace

TEST_F(PreviewVerb, TakesPicturesOfAProjectAndOfABuild)
{
    const ProgramRun project = preview(pump, {u"--shot"_s, u"new/pictures"_s});
    EXPECT_EQ(project.out, u"new/pictures/Main.png\n"_s);
    EXPECT_EQ(project.error, QString());
    EXPECT_EQ(project.code, 0);
    const QImage picture(sandbox.path(u"new/pictures/Main.png"_s));
    EXPECT_FALSE(picture.isNull());

    EXPECT_EQ(sandbox.run({u"build"_s, pump, u"-o"_s, u"out"_s}).code, 0);
    EXPECT_EQ(preview(u"out"_s, {u"--shot"_s, u"again"_s}).code, 0);
    EXPECT_EQ(QImage(sandbox.path(u"again/Main.png"_s)), picture);
    EXPECT_EQ(preview(u"Pump"_s, {u"--shot"_s, u"again"_s}).code, 3);
    EXPECT_EQ(preview(pump, {u"--shot"_s, u"out/project/config.kdrc"_s}).code, 3);
}

TEST_F(PreviewVerb, ReportsExpectedAndActualValues)
{
    sandbox.write(u"good"_s,
                  "expect Main.title.text 7\nset speed 40\nexpect Main.title.text \"40\"\nshot fast\n");
    const ProgramRun good =
        preview(pump, {u"--script"_s, u"good"_s, u"--shot"_s, u"out"_s, u"--state"_s, u"kept"_s});
    EXPECT_EQ(good.out, u"out/fast.png\n"_s);
    EXPECT_EQ(good.code, 0);
    sandbox.write(u"bad"_s, "# a remark\nexpect Main.title.text 7\nexpect speed 40\n");
    const ProgramRun bad = preview(pump, {u"--script"_s, u"bad"_s, u"--state"_s, u"kept"_s});
    EXPECT_EQ(bad.out, u"bad:2: expected Main.title.text \"7\", but it is \"40\"\n"_s);
    EXPECT_EQ(bad.code, 1);
    EXPECT_EQ(preview(pump, {u"--script"_s, u"missing"_s}).code, 3);
    sandbox.write(u"cut"_s, QByteArray("shot a\0b\n", 9));
    EXPECT_EQ(preview(pump, {u"--script"_s, u"cut"_s, u"--shot"_s, u"out"_s}).out,
              u"cut:1: The line contains a NUL character.\n"_s);
}

//! The panel shows what people mean, in expressions of all kinds.
TEST_F(PreviewVerb, EvaluatesOperationsAsTheyAreWritten)
{
    const struct
    {
        const char *binding;
        QByteArray expression;
        const char *first;  //!< with on false, level 5 and mode "open"
        const char *second; //!< with on true, level 0 and mode "shut"
    } cases[] = {
        {"text", "not on and not ack ? 1 : 2", "1", "2"},
        {"text", "on == true and level < 3 and not ack ? \"T\" : \"F\"", "F", "T"},
        {"text", "on != ack ? \"T\" : \"F\"", "F", "T"},
        {"text", "(on) != (true) and mode == \"open\" and not ack ? \"T\" : \"F\"", "T", "F"},
        {"text", "not level and not ack ? \"T\" : \"F\"", "F", "T"},
        {"text", "not (level > 3) and mode != name and not ack ? \"T\" : \"F\"", "F", "T"},
        {"text", "concat(not on, true == on)", "truefalse", "falsetrue"},
        {"text", "concat(level == 5, mode == name)", "truetrue", "falsefalse"},
        {"color", "not on and not ack ? \"green\" : (\"red\")", "#FF008000", "#FFFF0000"},
        {"visible", "not on and not ack", "true", "false"},
        {"visible", "on == true and on != ack", "false", "true"},
        {"visible", "mode == \"open\" and mode == name and (level) == (5)", "true", "false"},
        {"visible", "title.color == #FF112233 and not ack", "true", "true"},
        {"x", "not on and not ack ? 5 : 6", "5", "6"},
        {"x", "(on == true) * 90 + (on != ack) * 5 + (not level) * 3 + (level == 5)", "1", "98"},
    };
    QByteArray edits = "add BooleanVariable Pump on\nadd BooleanVariable Pump ack\n"
                       "add NumberVariable Pump level\nadd StringVariable Pump mode\n"
                       "add StringVariable Pump name1\nset Main.title.color = #112233\n"
                       "set name1.value = open\n";
    QByteArray before = "set on false\nset level 5\nset mode open\n";
    QByteArray after = "set on true\nset level 0\nset mode shut\n";
    int number = 0;
    for (const auto &[binding, expression, first, second] : cases) {
        const QByteArray element = "Main.shown" + QByteArray::number(++number);
        const QByteArray id = QByteArray(element).replace("Main.", "");
        edits += "add Text Main " + id + "\nset " + element + '.' + binding
                 + "Binding = " + QByteArray(expression).replace("name", "name1") + '\n';
        before += "expect " + element + '.' + binding + ' ' + first + '\n';
        after += "expect " + element + '.' + binding + ' ' + second + '\n';
    }
    sandbox.write(u"edits"_s, edits);
    const ProgramRun edit = sandbox.run({u"edit"_s, pump, u"edits"_s});
    ASSERT_EQ(edit.code, 0) << qPrintable(edit.error);
    EXPECT_EQ(sandbox.run({u"check"_s, pump, u"--screens"_s}).out, QString());
    sandbox.write(u"script"_s, before + after);
    EXPECT_EQ(preview(pump, {u"--script"_s, u"script"_s}).out, QString());
}

TEST_F(PreviewVerb, InspectsTheScreensForCheck)
{
    EXPECT_EQ(sandbox.run({u"check"_s, pump, u"--screens"_s}).code, 0);

    // Constants are converted to the type of their property, which QML does not do.
    sandbox.write(u"edits"_s, "set Main.title.visibleBinding = 1\nset Main.title.colorBinding = \"red\"\n"
                              "add Text Main seen\nset Main.seen.visibleBinding = title.color == #FF0000\n"
                              "set Main.title.textBinding = concat(\"T \", speed * 1.8 + 32)\n");
    EXPECT_EQ(sandbox.run({u"edit"_s, pump, u"edits"_s}).code, 0);
    EXPECT_EQ(sandbox.run({u"check"_s, pump, u"--screens"_s}).code, 0);
    sandbox.write(u"script"_s, "expect Main.seen.visible true\nexpect Main.title.text \"T 44.6\"\n");
    EXPECT_EQ(preview(pump, {u"--script"_s, u"script"_s}).out, QString());

    sandbox.write(pump, sandbox.read(pump).replace("0406speed", "0406none"));
    const ProgramRun check = sandbox.run({u"check"_s, pump, u"--screens"_s});
    EXPECT_EQ(check.out, u"Main.title: textBinding: Cannot find \"none\" in the project.\n"
                         "Main.title: There is no variable \"none\".\n"_s);
    EXPECT_EQ(check.code, 1);

    // A project that cannot be built is reported with the reasons.
    sandbox.write(u"none.kdproj"_s, "<Project><Properties><Property name=\"id\" value=\"name: None;\"/>"
                                    "</Properties></Project>");
    const ProgramRun none = sandbox.run({u"check"_s, u"none.kdproj"_s, u"--screens"_s});
    EXPECT_TRUE(none.out.contains(u"At least one screen is required."_s)) << qPrintable(none.out);
    EXPECT_EQ(none.code, 1);
}

TEST_F(PreviewVerb, CannotReachTheRestOfTheMachine)
{
    ASSERT_EQ(sandbox.run({u"build"_s, pump, u"-o"_s, u"out"_s}).code, 0);
    sandbox.write(u"out/project/qmldir"_s, "module Sent\nplugin machinecode\n");
    sandbox.write(u"out/project/qml_Main.qml"_s, R"(
        import QtQuick 2.0
        Canvas {
            objectName: "Main"; width: 40; height: 40
            onPaint: getContext("2d").fillRect(0, 0, 40, 40)
            property var speed: qmlViewer.getVariableValue("speed")
            onSpeedChanged: {
                for (const folder of ["pictures", ".", "out/project"])
                    console.log(folder, save(folder + "/sent.png"), "\u001b[2J");
            }
        })");
    sandbox.write(u"script"_s, "shot before\nset speed 8\n");
    const ProgramRun run = preview(u"out"_s, {u"--script"_s, u"script"_s, u"--shot"_s, u"pictures"_s});
    EXPECT_TRUE(run.error.contains(u"out/project/qmldir\" was not read"_s)) << qPrintable(run.error);
    EXPECT_EQ(run.code, 1);
    if (!hasLandlock()) {
        GTEST_SKIP() << "the system does not keep programs from writing files";
    }
    EXPECT_TRUE(run.error.contains(u"pictures false \uFFFD[2J\n"_s)) << qPrintable(run.error);
    EXPECT_TRUE(run.error.contains(u". false "_s)) << qPrintable(run.error);
    EXPECT_EQ(sandbox.files(u"."_s).filter(u"sent.png"_s), QStringList());

    // Images in markup bypass the engine's checks.
    QImage secret(8, 8, QImage::Format_RGB32);
    secret.fill(Qt::red);
    ASSERT_TRUE(secret.save(sandbox.path(u"secret.png"_s)));
    sandbox.write(u"out/project/qml_Main.qml"_s,
                  "import QtQuick 2.0 as Q\nQ.TextEdit { objectName: 'Main'; width: 20;"
                  "height: 20; textFormat: Q.TextEdit.RichText; text: '<img src=\""
                      + sandbox.path(u"secret.png"_s).toUtf8() + "\">' }");
    preview(u"out"_s, {u"--shot"_s, u"pictures"_s});
    ASSERT_FALSE(QImage(sandbox.path(u"pictures/Main.png"_s)).isNull());
    EXPECT_NE(QImage(sandbox.path(u"pictures/Main.png"_s)).pixelColor(4, 4), QColor(Qt::red));
}

TEST_F(PreviewVerb, StopsABuildThatUsesTooMuch)
{
    ASSERT_EQ(sandbox.run({u"build"_s, pump, u"-o"_s, u"out"_s}).code, 0);
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer maps more memory than a preview may have";
#endif
    static constexpr std::pair<const char *, const char *> documents[] = {
        {"import RuntimeObjects 2.0\nScreen { objectName: 'Main'; property var all: new Array(1e9).fill(1) }",
         "The preview was stopped at \"Main\": it used more than 2 GB"},
        {"import QtQuick 2.0 as Q\nimport RuntimeObjects 2.0\nScreen { objectName: 'Main'\n"
         "functions: [ Button { objectName: 'touched'; visualElement: box; "
         "onPressed: { new Array(1e9).fill(1) } } ]\n"
         "Rectangle { id: box; objectName: 'box'; width: 20; height: 20 } }",
         "The preview was stopped at \"Main.touched\": it used more than 2 GB"},
        {"import QtQuick 2.0\nCanvas { objectName: 'Main'; width: 20; height: 20; onPaint: getContext('2d')\n"
         "onPainted: save('sent.png') }",
         "or a script called itself endlessly"},
    };
    sandbox.write(u"script"_s, "show Main\npress box\nshot after\n");
    for (const auto &[document, sentence] : documents) {
        sandbox.write(u"out/project/qml_Main.qml"_s, document);
        const ProgramRun run = preview(u"out"_s, {u"--script"_s, u"script"_s});
        EXPECT_TRUE(run.error.contains(QString::fromUtf8(sentence))) << qPrintable(run.error);
        EXPECT_EQ(run.code, 3) << document;
    }
}

TEST_F(PreviewVerb, NeverOverwritesAForeignFileWithItsState)
{
    const QByteArray project = sandbox.read(pump);
    sandbox.write(u"script"_s, "set speed 8\n");
    EXPECT_EQ(preview(pump, {u"--script"_s, u"script"_s, u"--state"_s, pump}).code, 3);
    EXPECT_EQ(sandbox.read(pump), project);
    ASSERT_EQ(mkfifo(QFile::encodeName(sandbox.path(u"pipe"_s)).constData(), 0600), 0);
    const ProgramRun run = preview(pump, {u"--script"_s, u"script"_s, u"--state"_s, u"pipe"_s});
    EXPECT_EQ(run.error, u"corvex: \"pipe\" cannot be read: it is not a regular file.\n"_s);
    EXPECT_EQ(run.code, 3);
}

#ifdef SYS_landlock_create_ruleset
TEST_F(PreviewVerb, RefusesABuildThatCannotBeConfined)
{
    ASSERT_EQ(sandbox.run({u"build"_s, pump, u"-o"_s, u"out"_s}).code, 0);
    sandbox.deny(SYS_landlock_create_ruleset);
    const QStringList shot{u"--shot"_s, u"pictures"_s};
    const ProgramRun stranger = preview(u"out"_s, shot);
    EXPECT_TRUE(stranger.error.contains(u"--trust"_s)) << qPrintable(stranger.error);
    EXPECT_EQ(stranger.code, 3);
    for (const ProgramRun &run : {preview(u"out"_s, shot + QStringList{u"--trust"_s}), preview(pump, shot)}) {
        EXPECT_EQ(
            run.error,
            u"corvex: The scripts of the build are not confined, because this system has no Landlock.\n"_s);
        EXPECT_EQ(run.code, 0);
    }
}
#endif
