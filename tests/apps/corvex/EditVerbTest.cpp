// SPDX-License-Identifier: MIT
#include "corvex/common/zip/ZipHelper.h"

#include "Sandbox.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Halvane::Corvex;
using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

const QString pump = u"Pump/Pump.kdproj"_s;

void savePicture(QColor color, const QString &path)
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(color);
    picture.save(path);
}

class EditVerb : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString link = u"filterType: VisualElement; objectId: box1; scopeType: Screen;"_s;
        sandbox.makeProject(
            Sandbox::object("Button", "press", Sandbox::value("visualElement", link.toUtf8()))
                + Sandbox::object("Rectangle", "box1", Sandbox::value("position", "x: 10; y: 20;"))
                + Sandbox::object("Rectangle", "box2") + Sandbox::object("Text", "title")
                + Sandbox::object("Image", "photo"),
            Sandbox::object("NumberVariable", "speed", {}, "Project"));
        sandbox.run({u"fmt"_s, pump});
        savePicture(Qt::red, sandbox.path(u"one.png"_s));
        savePicture(Qt::blue, sandbox.path(u"two.png"_s));
        QFile::copy(sandbox.path(u"two.png"_s), sandbox.path(u"two.gif"_s));
        QFile::copy(sandbox.path(u"two.png"_s), sandbox.path(u".hidden.png"_s));
    }
    ProgramRun edit(const QByteArray &script, const QStringList &options = {}) const
    {
        sandbox.write(u"script"_s, script);
        return sandbox.run(QStringList{u"edit"_s, pump, u"script"_s} + options);
    }
    QString tree(const QString &path) const { return sandbox.run({u"tree"_s, pump, path}).out.trimmed(); }

    const Sandbox sandbox;
};

} // namespace

TEST_F(EditVerb, EveryEditIsDoneAndUndoRestoresEveryByte)
{
    const QByteArray before = sandbox.read(pump);
    const QByteArray script = R"(# all that there is
set Main.title.text Hello "you" %1
set Main.title.text "two\nlines"
set	Main.title.text	three  words here
model VTR 50-S
add Rectangle Main box3
add Text Main.elements
add NumberVariable Pump depth
add Screen screens Second
rename Main.box1 tank
rename speed rate
rename Second Other
swap Main.tank Main.box2
group group1 Main.tank Main.box2 Main.box3
move Main.title Main.group1
split Main.group1 title box3
ungroup Main.group1
filter boxes Main.tank Main.box2
filter boxes Main.tank
add-image one.png two.png
rename one.png uno.png
replace-image uno.png two.png
delete Main.title Main.box3 boxes Other rate two.png
)";
    const ProgramRun done = edit(QByteArray(script).replace(" boxes Other", " Main.boxes Other")
                                 + "undo 2\nredo\nprint Main.press.visualElement\n");
    EXPECT_EQ(done.error, QString());
    EXPECT_EQ(done.out, u"tank\n"_s);
    EXPECT_EQ(done.code, 0);
    EXPECT_EQ(tree(u"Main.tank.position"_s), u"10, 20"_s);
    EXPECT_EQ(sandbox.run({u"fmt"_s, pump, u"--check"_s}).code, 0);

    // Back to a project without images.
    sandbox.write(pump, before);
    QDir(sandbox.path(u"Pump/Images"_s)).removeRecursively();
    QByteArray twice = script;
    twice.replace(" boxes Other", " Main.boxes Other");
    EXPECT_EQ(edit(twice + "undo 22\n").error, QString());
    EXPECT_EQ(sandbox.read(pump), before);
    EXPECT_EQ(sandbox.files(u"Pump"_s), QStringList{u"Pump.kdproj"_s});
}

TEST_F(EditVerb, OneBadLinePreventsAllEdits)
{
    const QByteArray before = sandbox.read(pump);
    const struct
    {
        const char *line;
        const char *reason;
    } rows[] = {
        {"explode", "There is no edit \"explode\". \"corvex help edit\" lists them."},
        {"set Main.nothing.text x",
         "There is no property \"Main.nothing.text\". \"corvex tree FILE Main\" shows what exists."},
        {"set Main.titel.text x",
         "There is no property \"Main.titel.text\". Did you mean \"Main.title.text\"?"},
        {"set Main.title.position far", "position takes a position such as 10, 20, not \"far\"."},
        {"set Main.title.opacity much", "opacity takes a number from 10 to 100, not \"much\"."},
        {"set Main.title.visible maybe", "visible takes true or false, not \"maybe\"."},
        {"set Main.box1 far", "\"Main.box1\" is an object, but a property is needed, such as "
                              "\"Main.box1.position\". \"corvex tree FILE Main.box1\" shows them all."},
        {"set box1.opacity 1", "There is no property \"box1.opacity\". Did you mean \"Main.box1.opacity\"?"},
        {"set Main.title.text.x 1",
         "There is no property \"Main.title.text.x\". \"corvex tree FILE Main.title\" shows what exists."},
        {"delete Main.title.text",
         "\"Main.title.text\" is a property, but an object is needed, such as \"Main.title\"."},
        {"set Main.size height: 1; width: 1;", "\"Main.size\" cannot be set; it depends on other values."},
        {"set Main.title.text \xff", "The script is not in UTF-8. Save it in UTF-8."},
        {"set Main.photo.source filterType: ImageResource; objectId: x.png; scopeType: Project;",
         "The project has no image \"x.png\". Add it first, or choose another one."},
        {"set Main.title.id x", "Use rename to change a name; it updates all references."},
        {"rename Main.title", "Usage: rename PATH NAME"},
        {"rename Main.title box1", "The name is not unique. \"Main.box1\" (Rectangle) has this name."},
        {"rename speed s", "\"s\" is too short. A name has at least 2 characters."},
        {"add Nothing Main", "There is no class \"Nothing\". \"corvex classes\" lists them; --plugins DIR "
                             "loads other plug-ins with "
                             "more."},
        {"add Rectangle Main box1", "This cannot be added. There is already a \"box1\" in \"Main\". "
                                    "Rename one of the two first."},
        {"move Main.box1 Main.box1", "\"Main.box1\" has no list for an object of the class Rectangle."},
        {"add Text Main new", "This name is reserved."},
        {"group new Main.box1 Main.box2", "This name is reserved."},
        {"add ImageResource Pump a.png", "Use add-image to add an image; it copies the file."},
        {"add Text speed", "\"speed\" has no list for an object of the class Text."},
        {"delete Main.title nowhere",
         "There is no object \"nowhere\". \"corvex tree FILE Pump\" shows what exists."},
        {"group one Main.title", "Usage: group NAME PATH..."},
        {"group one Main.title Main.title", "At least two elements are required."},
        {"group one Main.title speed", "\"speed\" is a NumberVariable. A group contains elements."},
        {"add-image script",
         "\"script\" is not an image format that the device supports: png, jpg, jpeg, bmp, gif, svg."},
        {"add-image two.gif", "\"two.gif\" is an image in the format png. Rename it to \"two.png\"."},
        {"add-image .hidden.png",
         "The name of an image cannot begin with a dot or a space: \".hidden.png\"."},
        {"rename one.png ..png", "The name of an image cannot begin with a dot or a space: \"..png\"."},
        {"add-image missing.png", "There is no file \"missing.png\"."},
        {"add-image Pump", "\"Pump\" is not a file. Name a picture in it."},
        {"replace-image one.png missing.png", "There is no file \"missing.png\"."},
        {"model VTR 50K", "There is no device model \"VTR 50K\"; did you mean \"VTR 50-K\"? \"corvex new "
                          "--list-models\" lists them."},
        {"undo 9", "There are 2 edits to undo."},
        {"undo -2147483648", "There are 2 edits to undo."},
        {"print \"Main", "A quote is not closed."},
    };
    for (const auto &[line, reason] : rows) {
        const ProgramRun run = edit(QByteArray("set Main.title.text new\nadd-image one.png\n") + line + '\n');
        EXPECT_EQ(run.error,
                  u"script:3: %1\ncorvex: \"%2\" was not changed.\n"_s.arg(QString::fromLatin1(reason), pump))
            << line;
        EXPECT_EQ(run.code, 1) << line;
        EXPECT_EQ(sandbox.read(pump), before) << line;
        EXPECT_EQ(sandbox.files(u"Pump"_s), QStringList{u"Pump.kdproj"_s}) << line;
    }
    EXPECT_EQ(edit(QByteArray("set Main.title.text a\0b\n", 24)).code, 1);
    EXPECT_EQ(sandbox.run({u"edit"_s, pump, u"nowhere"_s}).code, 3);
    EXPECT_EQ(sandbox.run({u"edit"_s, pump, u"/dev/zero"_s}).code, 3);

    // All wrong lines are reported, except those that only fail because of another one.
    const ProgramRun all = edit("add Text Mian note\nset Main.note.text a\nset Main.titel.text b\nundo 1 2\n"
                                "rename Main.title box1\nset Main.box1.opactiy 1\nundo\nset Main.x 1\n");
    EXPECT_EQ(all.error.count(u'\n'), 6);
    for (const QString &start :
         {u"script:1: "_s, u"script:3: "_s, u"script:4: "_s, u"script:5: "_s, u"script:6: "_s}) {
        EXPECT_TRUE(all.error.contains(start)) << qPrintable(all.error);
    }
    // A path that does not exist takes no time, even if it is long.
    EXPECT_LT(edit("set " + QByteArray(1'000'000, '.') + " 1\n").error.size(), 5000);
}

TEST_F(EditVerb, AnInterruptedScriptIsUndone)
{
    const QByteArray before = sandbox.read(pump);
    QProcess program;
    program.setWorkingDirectory(sandbox.path({}));
    program.start(QStringLiteral(CORVEX_PROGRAM), {u"edit"_s, pump});
    program.write("add-image one.png\nrename one.png uno.png\n");
    const QString image = sandbox.path(u"Pump/Images/uno.png"_s);
    for (int tries = 0; tries < 1200 && !QFile::exists(image); ++tries) {
        program.waitForReadyRead(50);
    }
    ASSERT_TRUE(QFile::exists(image));
    program.terminate();
    ASSERT_TRUE(program.waitForFinished(60'000));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(QString::fromUtf8(program.readAllStandardError()),
              u"corvex: Interrupted: \"%1\" was not changed.\n"_s.arg(pump));
    EXPECT_EQ(sandbox.read(pump), before);
    EXPECT_EQ(sandbox.files(u"Pump"_s), QStringList{u"Pump.kdproj"_s});
}

TEST_F(EditVerb, WarnsOfInvalidValuesThatTheProjectKeeps)
{
    const QByteArray script = "set Main.title.opacity 300\nset Main.title.opacity 50\nset Main.box1.z 5000\n";
    const ProgramRun run = edit(script, {u"--dry-run"_s});
    EXPECT_EQ(run.error, u"warning: Main.box1.z: z takes numbers from 0 to 1000, not 5000.\n"_s);
    EXPECT_EQ(run.code, 0);
    const QJsonValue json = edit(script, {u"--json"_s}).json();
    EXPECT_EQ(json[u"warnings"_s].toArray().size(), 1);
}

TEST_F(EditVerb, ADryRunShowsWhatFollows)
{
    const QByteArray before = sandbox.read(pump);
    const ProgramRun run = edit("rename Main.box1 tank\n", {u"--dry-run"_s});
    EXPECT_THAT(run.out.toStdString(), HasSubstr("Change Name\n"));
    EXPECT_THAT(run.out.toStdString(), HasSubstr("  Main.press.visualElement: box1 -> tank\n"));
    EXPECT_THAT(edit("rename Main.box1 tank\n", {u"--dry-run"_s, u"--raw"_s}).out.toStdString(),
                HasSubstr("  Main.press.visualElement: filterType: VisualElement; objectId: box1; scopeType: "
                          "Screen; -> filterType: VisualElement; objectId: tank; scopeType: Screen;\n"));
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(edit("filter both Main.title\ndelete speed Main.title\n", {u"--dry-run"_s}).out,
              uR"(Add "both" to "Main"
Delete Project Variable "speed", Delete Elements and Filters
  Delete Project Variable "speed"
  Delete "title"
  Delete "both"
  Main.both.elements: title -> 
)"_s);
    EXPECT_EQ(sandbox.read(pump), before);
    const QJsonObject json = edit("set Main.title.text new \"one\"\n", {u"--json"_s}).json().toObject();
    const QJsonValue change = json[u"edits"_s][0][u"changes"_s][0];
    EXPECT_EQ(change[u"new"_s].toString(), u"new \"one\""_s);
    EXPECT_EQ(change[u"newReadable"_s].toString(), u"\"new \\\"one\\\"\""_s);
    EXPECT_EQ(tree(u"Main.title.text"_s), change[u"newReadable"_s].toString());
}

TEST_F(EditVerb, RenameAndDiff)
{
    const QString old = u"Old/Old.kdproj"_s;
    QDir(sandbox.path({})).mkdir(u"Old"_s);
    QFile::copy(sandbox.path(pump), sandbox.path(old));
    EXPECT_EQ(sandbox.run({u"diff"_s, old, pump}).code, 0);
    EXPECT_EQ(sandbox.run({u"rename"_s, pump, u"Main.title"_s, u"box1"_s}).code, 1);
    EXPECT_EQ(sandbox.run({u"rename"_s, pump, u"Main.photo"_s, u"picture"_s}).code, 0);
    EXPECT_EQ(edit("add Text Main note\ndelete Main.box2\nset Main.title.text new\n"
                   "group pair Main.box1 Main.title\n")
                  .error,
              QString());
    const ProgramRun diff = sandbox.run({u"diff"_s, old, pump});
    EXPECT_EQ(diff.out, uR"(renamed Main.photo: photo -> picture
moved Main.box1: Main.elements -> Main.pair.elements
moved Main.title: Main.elements -> Main.pair.elements
changed Main.title.text:  -> new
removed Rectangle Main.box2
added GroupElement Main.pair
added Text Main.note
)"_s);
    EXPECT_EQ(diff.code, 1);
    sandbox.write(old, sandbox.read(pump));
    EXPECT_EQ(edit("rename Main First\nrename First.pair couple\nset First.couple.title.text old\n"
                   "group trio First.note First.press\n")
                  .error,
              QString());
    EXPECT_EQ(sandbox.run({u"diff"_s, old, pump}).out, uR"(changed defaultScreen: Main -> First
renamed Main: Main -> First
renamed Main.pair: pair -> couple
changed Main.pair.title.text: new -> old
moved Main.press: Main.elements -> First.trio.elements
moved Main.note: Main.elements -> First.trio.elements
added GroupElement First.trio
)"_s);
    sandbox.write(old, sandbox.read(pump).replace("name: VTR 50-K", "name: VTR 50-S"));
    const ProgramRun models = sandbox.run({u"diff"_s, old, pump});
    EXPECT_EQ(models.out, u"changed VTR 50-S.id: VTR 50-S -> VTR 50-K\n"_s);
    EXPECT_EQ(models.code, 1);
    // git's own arguments, and an image with the same name and other contents.
    const QStringList hash{u"0000000"_s, u"100644"_s};
    const ProgramRun git =
        sandbox.run(QStringList{u"diff"_s, u"--git"_s, pump, old} + hash + QStringList{pump} + hash);
    EXPECT_EQ(git.out, u"%1:\n%2"_s.arg(pump, models.out));
    EXPECT_EQ(git.code, 0);
    EXPECT_EQ(
        sandbox
            .run(QStringList{u"diff"_s, u"--git"_s, pump, u"/dev/null"_s} + hash + QStringList{pump} + hash)
            .out,
        u"%1:\nadded Project Pump\n"_s.arg(pump));
    EXPECT_EQ(edit("add-image one.png\n").error, QString());
    QDir(sandbox.path(u"Old"_s)).mkdir(u"Images"_s);
    sandbox.write(old, sandbox.read(pump));
    EXPECT_EQ(sandbox.run({u"diff"_s, old, pump}).code, 0);
    sandbox.write(u"Old/Images/one.png"_s, sandbox.read(u"two.png"_s));
    const ProgramRun contents = sandbox.run({u"diff"_s, old, pump});
    EXPECT_TRUE(contents.out.startsWith(u"changed one.png.imageFile: "_s)) << qPrintable(contents.out);
    EXPECT_EQ(contents.code, 1);
    EXPECT_EQ(edit("rename one.png other.png\n").error, QString());
    EXPECT_TRUE(sandbox.run({u"diff"_s, old, pump})
                    .out.startsWith(u"renamed one.png: one.png -> other.png\nchanged one.png.imageFile: "_s));
    const QString station = u"Station/Station.kdproj"_s;
    EXPECT_EQ(sandbox.run({u"rename"_s, pump, u"Pump"_s, u"Station"_s}).error, QString());
    EXPECT_EQ(sandbox.run({u"fmt"_s, station, u"--check"_s}).code, 0);
    EXPECT_FALSE(QFile::exists(sandbox.path(u"Pump"_s)));

    // A copied file still contains the name of its original.
    QDir(sandbox.path({})).mkdir(u"Copy"_s);
    sandbox.write(u"Copy/Copy.kdproj"_s, sandbox.read(station));
    EXPECT_EQ(sandbox.run({u"rename"_s, u"Copy/Copy.kdproj"_s, u"Station"_s, u"Tank"_s}).error, QString());
    EXPECT_TRUE(sandbox.read(u"Tank/Tank.kdproj"_s).contains("name: Tank;"));
    EXPECT_FALSE(QFile::exists(sandbox.path(u"Copy"_s)));
}

TEST(EditVerbKept, ItemsOfUnknownClassesKeepTheirPlaces)
{
    const Sandbox sandbox;
    const QByteArray inner = Sandbox::object("Rectangle", "box1") + Sandbox::object("Gauge", "inner")
                             + Sandbox::object("Rectangle", "box2");
    sandbox.makeProject(Sandbox::object("Text", "one") + Sandbox::object("Text", "two")
                        + Sandbox::object("Gauge", "dial", Sandbox::value("range", "&lt;0403one&gt; far"))
                        + Sandbox::object("Text", "three")
                        + Sandbox::object("GroupElement", "group1",
                                          Sandbox::value("indexes", "box1 | box2")
                                              + "<Property name=\"elements\">\n<List>\n" + inner
                                              + "</List>\n</Property>\n"));
    sandbox.run({u"fmt"_s, pump});
    const QByteArray before = sandbox.read(pump);
    ASSERT_TRUE(before.contains("dial") && before.contains("inner"));
    const auto edit = [&sandbox](const QByteArray &script) {
        sandbox.write(u"script"_s, script);
        return sandbox.run({u"edit"_s, pump, u"script"_s});
    };
    for (const QByteArray script :
         {"delete Main.two", "delete Main.two Main.one", "group pair Main.one Main.two Main.three",
          "move Main.two Main.group1", "split Main.group1 box1", "delete Main", "swap Main.two Main.one"}) {
        EXPECT_EQ(edit(script + "\nundo\n").error, QString());
        EXPECT_EQ(sandbox.read(pump), before) << script.constData();
    }
    const QString mention = u"\"Main.dial\" still mentions \"one\", because its plug-in is missing."_s;
    EXPECT_TRUE(edit("rename Main.one first\nundo\n").out.startsWith(mention));
    EXPECT_TRUE(edit("delete Main.two Main.one\nundo\n").out.startsWith(mention));
    EXPECT_EQ(sandbox.run({u"uses"_s, pump, u"Main.one"_s}).out, u"Main.dial: one\n"_s);
    EXPECT_EQ(edit("ungroup Main.group1\n").code, 1);
    EXPECT_EQ(sandbox.read(pump), before);

    const QString old = u"Old/Old.kdproj"_s;
    QDir(sandbox.path({})).mkdir(u"Old"_s);
    sandbox.write(old, before);
    EXPECT_EQ(sandbox.run({u"diff"_s, old, pump}).code, 0);
    sandbox.write(pump, QByteArray(before).replace("far", "near").replace("name: inner", "name: other"));
    const ProgramRun diff = sandbox.run({u"diff"_s, old, pump, u"--json"_s});
    EXPECT_EQ(diff.code, 1);
    QStringList told;
    for (const QJsonValue &difference : diff.json()[u"differences"_s].toArray()) {
        told.append(difference[u"kind"_s].toString() + u' ' + difference[u"path"_s].toString());
    }
    EXPECT_EQ(told, (QStringList{u"added Main.group1.other"_s, u"removed Main.group1.inner"_s,
                                 u"changed Main.dial"_s}));
}

TEST_F(EditVerb, TheProjectKeepsItsPermissions)
{
    constexpr QFileDevice::Permissions own =
        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadUser | QFileDevice::WriteUser;
    const std::pair<QStringList, QString> edits[] = {
        {{u"edit"_s, pump, u"script"_s}, pump},
        {{u"rename"_s, pump, u"one.png"_s, u"uno.png"_s}, pump},
        {{u"rename"_s, pump, u"Pump"_s, u"Pumpe"_s}, u"Pumpe/Pumpe.kdproj"_s},
    };
    QFile::setPermissions(sandbox.path(pump), own);
    sandbox.write(u"script"_s, "add-image one.png\n");
    for (const auto &[call, file] : edits) {
        EXPECT_EQ(sandbox.run(call).code, 0) << qPrintable(call.join(u' '));
        EXPECT_EQ(QFile::permissions(sandbox.path(file)), own) << qPrintable(call.join(u' '));
    }
}

TEST_F(EditVerb, TwoConcurrentEditsAreBothSaved)
{
    sandbox.run({u"edit"_s, pump, u"-"_s});
    for (int round = 1; round <= 3; ++round) {
        const QString value = QString::number(round);
        const QStringList names{u"one"_s + value, u"two"_s + value};
        QProcess programs[3];
        for (int i = 0; i < 2; ++i) {
            savePicture(QColor::fromHsv(40 * round + 20 * i, 200, 200), sandbox.path(names[i] + u".png"_s));
            sandbox.write(names[i], u"set Main.%1 %2\nadd-image %3.png\nrename %3.png %3new.png\n"_s
                                        .arg(i == 0 ? u"title.text"_s : u"box1.opacity"_s, value, names[i])
                                        .toUtf8());
        }
        // An older build next to the projects contains its images.
        const QList<QStringList> calls{{u"edit"_s, pump, names[0]},
                                       {u"edit"_s, pump, names[1]},
                                       {u"build"_s, pump, u"--force"_s, u"-o"_s, u"out"_s}};
        for (int i = 0; i < 3; ++i) {
            programs[i].setWorkingDirectory(sandbox.path({}));
            programs[i].start(QStringLiteral(CORVEX_PROGRAM), calls[i]);
        }
        for (QProcess &program : programs) {
            ASSERT_TRUE(program.waitForFinished(60'000));
            EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().constData();
        }
        EXPECT_EQ(tree(u"Main.title.text"_s), value);
        EXPECT_EQ(tree(u"Main.box1.opacity"_s), value);
        const QString built = sandbox.path(u"unzipped"_s);
        EXPECT_TRUE(Common::ZipHelper::unzip(sandbox.path(u"out/project/Project.kdproj.zip"_s), built));
        const QByteArray text = sandbox.read(u"unzipped/Project.kdproj"_s);
        for (const QString &name : names) {
            const QString image = name + u"new.png"_s;
            EXPECT_TRUE(QFile::exists(sandbox.path(u"Pump/Images/"_s + image)));
            EXPECT_EQ(text.contains(image.toUtf8()), QFile::exists(sandbox.path(u"out/project/"_s + image)));
        }
    }
    EXPECT_EQ(sandbox.files(u"Pump"_s).size(), 7) << "nothing is left over";
}

TEST_F(EditVerb, AKilledEditIsUndoneWhenTheProjectIsOpened)
{
    const QByteArray before = sandbox.read(pump);
    QProcess program;
    program.setWorkingDirectory(sandbox.path({}));
    program.start(QStringLiteral(CORVEX_PROGRAM), {u"edit"_s, pump});
    program.write("add-image one.png\nrename Pump Well\n");
    for (int tries = 0; tries < 1200 && !QFile::exists(sandbox.path(u"Well"_s)); ++tries) {
        program.waitForReadyRead(50);
    }
    ASSERT_TRUE(QFile::exists(sandbox.path(u"Well"_s)));
    program.kill();
    ASSERT_TRUE(program.waitForFinished(60'000));
    const ProgramRun next = sandbox.run({u"info"_s, pump});
    EXPECT_EQ(next.error,
              u"%1: An interrupted edit of this project was undone. The project is as it was last "
              "saved.\n"_s.arg(pump));
    EXPECT_EQ(next.code, 0);
    EXPECT_EQ(sandbox.read(pump), before);
    EXPECT_EQ(sandbox.files(u"Pump"_s), QStringList{u"Pump.kdproj"_s});
    EXPECT_EQ(sandbox.run({u"info"_s, pump}).error, QString());
}

TEST_F(EditVerb, AProjectThatCouldNotBeOpenedAgainIsNotSaved)
{
    const QByteArray before = sandbox.read(pump);
    EXPECT_THAT(edit("set Main.title.text " + QByteArray(5'000'000, '<') + '\n').error.toStdString(),
                HasSubstr("longer than 16 MB"));
    QByteArray nested = "group g0 Main.box1 Main.box2\n";
    for (int i = 1; i < 140; ++i) {
        nested += "add Rectangle Main r" + QByteArray::number(i) + "\ngroup g" + QByteArray::number(i)
                  + " Main.g" + QByteArray::number(i - 1) + " Main.r" + QByteArray::number(i) + '\n';
    }
    EXPECT_THAT(edit(nested).error.toStdString(), HasSubstr("nested too deeply"));
    EXPECT_EQ(sandbox.read(pump), before);
}

//! All files of the example after these edits.
struct EditedExample
{
    explicit EditedExample(const QByteArray &lines)
    {
        const Sandbox sandbox;
        const QDir examples(QStringLiteral(CORVEX_EXAMPLES));
        QDirIterator entries(examples.filePath(u"PumpStation"_s), QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString name = examples.relativeFilePath(entries.next());
            QDir().mkpath(QFileInfo(sandbox.path(name)).path());
            QFile::copy(examples.filePath(name), sandbox.path(name));
        }
        savePicture(Qt::red, sandbox.path(u"one.png"_s));
        savePicture(Qt::blue, sandbox.path(u"two.png"_s));
        sandbox.write(u"script"_s, lines);
        error = sandbox.run({u"edit"_s, u"PumpStation/PumpStation.kdproj"_s, u"script"_s}).error;
        for (const QString &name : sandbox.files({})) {
            files.insert(name, name == "script"_L1 ? QByteArray() : sandbox.read(name));
        }
    }

    QString error;
    QMap<QString, QByteArray> files;
};

TEST(EditScript, UndoAndRedoOfAHundredEditsRestoreEveryByte)
{
    QFile script(QStringLiteral(CORVEX_EDITS));
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    const QByteArray lines = script.readAll();
    const EditedExample first("# nothing\n");
    const EditedExample last(lines);
    ASSERT_EQ(last.error, QString());
    EXPECT_TRUE(last.files.contains(u"NorthStation/NorthStation.kdproj"_s));

    const EditedExample failed(lines + "undo 9999\n");
    static const QRegularExpression count(u"There are (\\d+) edits to undo"_s);
    const QByteArray number = count.match(failed.error).captured(1).toLatin1();
    EXPECT_GE(number.toInt(), 100);
    EXPECT_EQ(failed.files, first.files);
    EXPECT_EQ(EditedExample(lines + "undo " + number + '\n').files, first.files);
    EXPECT_EQ(EditedExample(lines + "undo " + number + "\nredo " + number + '\n').files, last.files);
}
