// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QJsonObject>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

const QString pump = u"Pump/Pump.kdproj"_s;

} // namespace

TEST(NewVerb, CreatesAProjectThatTheOtherVerbsOpen)
{
    const Sandbox sandbox;
    const ProgramRun made = sandbox.run({u"new"_s, u"Kessel 1 ä"_s, u"--model"_s, u"VTR 50-K"_s});
    EXPECT_EQ(made.out, u"Kessel 1 ä/Kessel 1 ä.kdproj\n"_s);
    EXPECT_TRUE(made.error.startsWith(u"The screen \"Main\" is still empty."_s)) << qPrintable(made.error);
    EXPECT_EQ(made.code, 0);
    const QString file = made.out.trimmed();
    EXPECT_EQ(sandbox.run({u"info"_s, file}).out, u"name:           Kessel 1 ä\n"
                                                  "version:        Kessel 1 ä-4.0.0\n"
                                                  "written by:     4.0.0\n"
                                                  "model:          VTR 50-K\n"
                                                  "default screen: Main\n"
                                                  "\n"
                                                  "objects:\n"
                                                  "       1 Configuration\n"
                                                  "       1 Screen\n"_s);
    EXPECT_EQ(sandbox.run({u"tree"_s, file}).out,
              u"Project Kessel 1 ä\n  Configuration VTR 50-K\n  Screen Main\n"_s);
    EXPECT_EQ(sandbox.run({u"fmt"_s, file, u"--check"_s}).code, 0);
    const ProgramRun checked = sandbox.run({u"check"_s, file});
    EXPECT_EQ(checked.out, u"Main: elements: At least one element is required.\n"_s);
    EXPECT_EQ(checked.code, 1);
}

TEST(NewVerb, NeverChangesExistingFiles)
{
    const Sandbox sandbox;
    sandbox.write(u"Taken/Taken.kdproj"_s, "mine");
    sandbox.write(u"Locked/file"_s, "");
    struct Case
    {
        QStringList arguments;
        int code;
        QString error;
    };
    const QStringList model{u"--model"_s, u"VTR 50-K"_s};
    const Case cases[] = {
        {QStringList{u"Taken"_s} + model, 3, u"Taken/Taken.kdproj\" exists already."_s},
        {QStringList{u"no/where"_s} + model, 3, u"no\" does not exist."_s},
        {QStringList{u"Locked/file/x2"_s} + model, 3, u"Locked/file\" does not exist."_s},
        {QStringList{u"Pump.kdproj"_s} + model, 2, u"corvex new \"Pump\" --model NAME."_s},
        {QStringList{u"a:b"_s} + model, 2, u"See \"corvex help new\"."_s},
        {QStringList{u"a\nb"_s} + model, 2, u"may not be used: \\n See \"corvex help new\""_s},
        {QStringList{u"ab "_s} + model, 2, u"cannot begin or end with a space."_s},
        {QStringList{QString(249, u'a')} + model, 2,
         u"The project's name cannot have more than 248 characters."_s},
        {{u"Pump"_s}, 2, u"needs a path and a device model"_s},
        {model, 2, u"needs a path and a device model"_s},
        {{u"Pump"_s, u"--model"_s, u"VTR 50K"_s}, 2, u"\"VTR 50K\"; did you mean \"VTR 50-K\"?"_s},
        {{u"Pump"_s, u"--model"_s, u"X"_s, u"--configurations"_s, u"nix"_s},
         3,
         u"\"nix\" of --configurations"_s},
        {{u"Pump"_s, u"--model"_s, u"X"_s, u"--configurations"_s, u"Locked"_s},
         3,
         u"Locked/Configurations\" contains no device models"_s},
    };
    for (const auto &[arguments, code, error] : cases) {
        const ProgramRun run = sandbox.run(QStringList{u"new"_s} + arguments);
        EXPECT_EQ(run.code, code) << qPrintable(arguments.join(u' '));
        EXPECT_EQ(run.out, QString());
        EXPECT_THAT(run.error.toStdString(), HasSubstr(error.toStdString()));
    }
    EXPECT_EQ(sandbox.read(u"Taken/Taken.kdproj"_s), QByteArray("mine"));
    EXPECT_EQ(sandbox.files(u"."_s), QStringList({u"Locked/file"_s, u"Taken/Taken.kdproj"_s}));
    EXPECT_THAT(sandbox.run({u"new"_s, u"--list-models"_s}).out.split(u'\n'),
                testing::Contains(u"VTR 50-K"_s));
}

TEST(TreeVerb, ShowsObjectsAndValues)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::goodElements() + Sandbox::object("Gauge", "gauge1"),
                        Sandbox::object("NumberVariable", "speed", {}, "Project"),
                        Sandbox::object("ImageResource", "pump.png", {}, "Project"));
    EXPECT_EQ(sandbox.run({u"tree"_s, pump}).out, u"Project Pump\n"
                                                  "  Configuration VTR 50-K\n"
                                                  "  ImageResource pump.png\n"
                                                  "  NumberVariable speed\n"
                                                  "  Screen Main\n"
                                                  "    Text title\n"
                                                  "    GroupElement group1\n"
                                                  "      Rectangle box1\n"
                                                  "      Rectangle box2\n"
                                                  "    Gauge gauge1 (kept unchanged from the file)\n"_s);
    const struct
    {
        QString path;
        QString out; //!< its first line
    } cases[] = {
        {u"Main.group1.box1.position"_s, u"10, 20.5"_s},
        {u"Main.group1"_s, u"GroupElement group1"_s},
        {u"Main.title.text"_s, u"\"Pump %1 \\\"A\\\"\\n2\""_s},
        {u"speed.id"_s, u"speed"_s},
        {u"pump.png"_s, u"ImageResource pump.png"_s},
        {u"pump.png.id"_s, u"pump.png"_s},
        {u"configuration.screenSize"_s, u"480 x 272"_s},
        {u"VTR 50-K.displayBrightness"_s, u"100"_s},
        {u"variables"_s, u"NumberVariable speed"_s},
        {u"designerVersion"_s, u"4.0.0"_s},
        {u"Pump"_s, u"Project Pump"_s},
    };
    for (const auto &[path, out] : cases) {
        const ProgramRun run = sandbox.run({u"tree"_s, pump, path});
        EXPECT_EQ(run.out.section(u'\n', 0, 0), out) << qPrintable(path);
        EXPECT_EQ(run.code, 0);
    }
    for (const QString &path :
         {u"Main.group1.box3"_s, u"box1"_s, u"Main.title.text.x"_s, u"Main."_s, u"."_s}) {
        const ProgramRun run = sandbox.run({u"tree"_s, pump, path});
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, QString());
        EXPECT_THAT(run.error.toStdString(),
                    HasSubstr(u"\"%2\" contains nothing called \"%1\"."_s.arg(path, pump).toStdString()));
    }
    for (const QString &verb : {u"tree"_s, u"uses"_s}) {
        EXPECT_THAT(sandbox.run({verb, pump, u"Main.titel"_s}).error.toStdString(),
                    HasSubstr("Did you mean \"Main.title\"?"));
    }
    const ProgramRun title = sandbox.run({u"tree"_s, pump, u"Main.title"_s});
    EXPECT_THAT(title.out.toStdString(), HasSubstr("\n  text = \"Pump %1 \\\"A\\\"\\n2\"\n"));
    EXPECT_EQ(sandbox.run({u"tree"_s, pump, u"Main.title.text"_s, u"--raw"_s}).out, u"Pump %1 \"A\"\n2\n"_s);
}

TEST(UsesVerb, ShowsWhereAThingIsUsed)
{
    const Sandbox sandbox;
    const auto variable = [](const char *name) {
        return Sandbox::object("NumberVariable", name, {}, "Project");
    };
    sandbox.makeProject(
        Sandbox::object("Text", "title",
                        Sandbox::value("textBinding", "<0406speed><0101*><0406speed>")
                            + Sandbox::value("xBinding", "0306Main.box.x")
                            + Sandbox::value("yBinding", "0306gone.y"))
            + Sandbox::object("Rectangle", "box", Sandbox::value("xBinding", "0406speedy"))
            + Sandbox::object("Button", "press", Sandbox::value("visualElement", "objectId: box;")),
        variable("idle") + variable("speed") + variable("speedy"));
    const struct
    {
        QStringList arguments;
        QString out;
    } cases[] = {
        {{u"speed"_s}, u"Main.title.textBinding: speed\n"_s},
        {{u"Main.box"_s}, u"Main.press.visualElement: box\nMain.title.xBinding: Main.box\n"_s},
        {{u"box"_s}, u"Main.press.visualElement: box\nMain.title.xBinding: Main.box\n"_s},
        {{u"gone"_s}, u"Main.title.yBinding: gone\n"_s},
        {{u"Pump.Main.press"_s}, QString()},
        {{u"press"_s}, QString()},
        {{u"speed"_s, u"--values"_s}, u"Main.title.textBinding: speed * speed\n"_s},
        {{u"speed"_s, u"--raw"_s}, u"Main.title.textBinding: <0406speed><0101*><0406speed>\n"_s},
        {{u"gone"_s, u"--json"_s},
         u"{\n  \"uses\": [\n    {\n      \"property\": \"Main.title.yBinding\",\n      \"text\": "
         "\"gone\",\n      \"value\": \"0306gone.y\",\n      \"readable\": \"gone.y::number\"\n"
         "    }\n  ]\n}\n"_s},
        {{}, u"idle\n"_s},
        {{u"--json"_s}, u"{\n  \"unused\": [\n    \"idle\"\n  ]\n}\n"_s},
    };
    for (const auto &[arguments, out] : cases) {
        const ProgramRun run = sandbox.run(QStringList{u"uses"_s, pump} + arguments);
        EXPECT_EQ(run.out, out) << qPrintable(arguments.join(u' '));
        EXPECT_EQ(run.code, 0) << qPrintable(run.error);
    }
    EXPECT_EQ(sandbox.run({u"uses"_s, pump, u"Main.gone"_s}).code, 2);
}

TEST(TreeVerb, PrintsJson)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::goodElements());
    const QJsonValue tree = sandbox.run({u"tree"_s, pump, u"--json"_s}).json();
    EXPECT_EQ(tree.toObject().keys(), QStringList({u"children"_s, u"class"_s, u"name"_s, u"properties"_s}));
    const QJsonValue screen = tree[u"children"_s][1];
    EXPECT_EQ(screen[u"class"_s], QJsonValue(u"Screen"_s));
    EXPECT_EQ(screen[u"children"_s][0][u"properties"_s][u"text"_s], QJsonValue(u"Pump %1 \"A\"\n2"_s));
    EXPECT_EQ(screen[u"children"_s][1][u"children"_s][0][u"name"_s], QJsonValue(u"box1"_s));
    EXPECT_EQ(sandbox.run({u"tree"_s, pump, u"Main"_s, u"--json"_s}).json(), screen);
    EXPECT_EQ(sandbox.run({u"tree"_s, pump, u"Main.title.text"_s, u"--json"_s}).json(),
              QJsonValue(QJsonObject{{u"object"_s, u"Main.title"_s},
                                     {u"property"_s, u"text"_s},
                                     {u"value"_s, u"Pump %1 \"A\"\n2"_s}}));
}
