// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

const QString pump = u"Pump/Pump.kdproj"_s;

//! A text and a group with two rectangles in it.
QByteArray goodElements()
{
    return Sandbox::object("Text", "title", Sandbox::value("text", "Pump %1 \"A\"\n2"))
           + Sandbox::object(
               "GroupElement", "group1",
               Sandbox::value("indexes", "box1 | box2") + "<Property name=\"elements\">\n<List>\n"
                   + Sandbox::object("Rectangle", "box1", Sandbox::value("position", "x: 10; y: 20.5;"))
                   + Sandbox::object("Rectangle", "box2") + "</List>\n</Property>\n");
}

} // namespace

TEST(NewVerb, makesAProjectThatTheOtherVerbsOpen)
{
    const Sandbox sandbox;
    const ProgramRun made = sandbox.run({u"new"_s, u"Kessel 1 ä"_s, u"--model"_s, u"VTR 50-K"_s});
    EXPECT_EQ(made.out, u"Kessel 1 ä/Kessel 1 ä.kdproj\n"_s);
    EXPECT_EQ(made.error, QString());
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

TEST(NewVerb, touchesNothingThatIsThere)
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
        {QStringList{u"a:b"_s} + model, 2, u"\"corvex help new\" tells more."_s},
        {QStringList{u"a\nb"_s} + model, 2, u"may not be used: \\n \"corvex help new\""_s},
        {QStringList{u"ab "_s} + model, 2, u"cannot begin or end with a blank."_s},
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
         u"no device models in \"Locked"_s},
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

TEST(TreeVerb, showsObjectsAndValues)
{
    const Sandbox sandbox;
    sandbox.makeProject(goodElements() + Sandbox::object("Gauge", "gauge1"),
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
                                                  "    Gauge gauge1 (kept as it stands in the file)\n"_s);
    const struct
    {
        QString path;
        QString out; //!< its first line
    } cases[] = {
        {u"Main.group1.box1.position"_s, u"x: 10; y: 20.5;"_s},
        {u"Main.group1"_s, u"GroupElement group1"_s},
        {u"Main.title.text"_s, u"Pump %1 \"A\""_s},
        {u"speed.id"_s, u"filterType: NumberVariable; name: speed; scopeType: Project;"_s},
        {u"pump.png"_s, u"ImageResource pump.png"_s},
        {u"pump.png.id"_s, u"filterType: ImageResource; name: pump.png; scopeType: Project;"_s},
        {u"configuration.screenSize"_s, u"height: 272; width: 480;"_s},
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
                    HasSubstr(u"There is nothing called \"%1\" in \"%2\"."_s.arg(path, pump).toStdString()));
    }
    for (const QString &verb : {u"tree"_s, u"uses"_s}) {
        EXPECT_THAT(sandbox.run({verb, pump, u"Main.titel"_s}).error.toStdString(),
                    HasSubstr("Did you mean \"Main.title\"?"));
    }
    const ProgramRun title = sandbox.run({u"tree"_s, pump, u"Main.title"_s});
    EXPECT_THAT(title.out.toStdString(), HasSubstr("\n  text = Pump %1 \"A\"\\n2\n"));
}

TEST(UsesVerb, tellsWhereAThingIsUsed)
{
    const Sandbox sandbox;
    const auto variable = [](const char *name) {
        return Sandbox::object("NumberVariable", name, {}, "Project");
    };
    sandbox.makeProject(
        Sandbox::object("Text", "title",
                        Sandbox::value("textBinding", "<0406speed><0101+><0406speed>")
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
        {{u"gone"_s, u"--json"_s},
         u"{\n  \"uses\": [\n    {\n      \"property\": \"Main.title.yBinding\",\n      \"text\": "
         "\"gone\"\n    }\n  ]\n}\n"_s},
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

TEST(TreeVerb, printsJson)
{
    const Sandbox sandbox;
    sandbox.makeProject(goodElements());
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

TEST(CheckVerb, namesEveryProblemInOneLine)
{
    const Sandbox sandbox;
    sandbox.makeProject(goodElements());
    const ProgramRun good = sandbox.run({u"check"_s, pump});
    EXPECT_EQ(good.out + good.error, QString());
    EXPECT_EQ(good.code, 0);

    const Sandbox other;
    const QByteArray nested =
        QByteArray("<0101(>").repeated(5000) + "<02041>" + QByteArray("<0101)>").repeated(5000);
    other.makeProject(goodElements() + Sandbox::object("Gauge", "gauge1")
                          + Sandbox::object("Text", "bad\nname", Sandbox::value("size", "small"))
                          + Sandbox::object("Text", "late", Sandbox::value("textBinding", "0707alert(1)"))
                          + Sandbox::object("Text", "turned", Sandbox::value("rotationBinding", nested)),
                      {},
                      Sandbox::object("ImageResource", "a.png", {}, "Project")
                          + Sandbox::object("ImageResource", "../../x.png", {}, "Project"));
    const ProgramRun bad = other.run({u"check"_s, pump});
    EXPECT_EQ(bad.code, 1);
    EXPECT_EQ(bad.error, QString());
    const int gauge = other.lineOf(pump, "<Gauge>");
    const int size = other.lineOf(pump, "\"small\"");
    const QStringList expected{
        u"Main: line %1, column 1: No plug-in knows the class \"Gauge\"; the item is kept as it is."_s.arg(
            gauge),
        u"Main.bad\\nname: line %1, column 1: The value \"small\" of the property \"size\" cannot be read; "
        u"it "
        "stays \"height: 24; width: 120;\"."_s.arg(size),
        u"../../x.png: id: The name is in the wrong format. The following character may not be used: /"_s,
        u"../../x.png: imageFile: The file \"../../x.png\" does not exist."_s,
        u"a.png: imageFile: The file \"a.png\" does not exist."_s,
        u"Main.bad\\nname: id: The name is in the wrong format. Only letters, numbers and underscore are "
        u"allowed. "
        "The first character must be a letter."_s,
        u"Main.late: textBinding: Term 1 of the expression, \"0707alert(1)\", cannot be used in it."_s,
        u"Main.turned: rotationBinding: The generated code cannot be read by the device: It is nested more "
        u"than "
        "1000 levels deep."_s,
    };
    EXPECT_EQ(bad.out, expected.join(u'\n') + u'\n');
    const QJsonArray problems = other.run({u"check"_s, pump, u"--json"_s}).json()[u"problems"_s].toArray();
    EXPECT_EQ(problems.size(), bad.out.count(u'\n'));
    EXPECT_EQ(problems.at(0)[u"line"_s].toInt(), gauge);
    EXPECT_EQ(problems.at(4)[u"object"_s].toString(), u"a.png"_s);
    EXPECT_EQ(problems.at(4)[u"property"_s].toString(), u"imageFile"_s);
    QStringList codes;
    for (const auto &problem : problems) {
        EXPECT_EQ(problem[u"severity"_s].toString(), u"error"_s);
        codes.append(problem[u"code"_s].toString());
    }
    EXPECT_EQ(codes.join(u' '),
              u"file.kept file.dropped name.invalid image.file image.file name.format expression.invalid "
              "code.unreadable"_s);

    const ProgramRun both = other.run({u"check"_s, pump, u"none"_s, pump});
    EXPECT_EQ(both.code, 3);
    EXPECT_EQ(both.out.count(u'\n'), 2 * bad.out.count(u'\n'));
    EXPECT_TRUE(both.out.startsWith(pump + u": Main: "_s)) << qPrintable(both.out);

    const QJsonValue info = other.run({u"info"_s, pump, u"--json"_s}).json();
    EXPECT_EQ(info[u"missingPlugins"_s], QJsonValue(QJsonObject{{u"Gauge"_s, QJsonArray{u"Main.gauge1"_s}}}));
    EXPECT_EQ(info[u"classes"_s][u"Text"_s].toInt(), 4);
    EXPECT_EQ(info[u"images"_s][0][u"usable"_s], QJsonValue(false));
    EXPECT_EQ(info[u"notes"_s].toArray().size(), 2);
}

TEST(CheckVerb, followsWhatPartsSayOfEachOther)
{
    const auto text = [](const char *name, const char *property, const char *value) {
        return Sandbox::object("Text", name, Sandbox::value(property, value));
    };
    const auto link = [](const QByteArray &className, const QByteArray &name, const QByteArray &scope) {
        return "filterType: " + className + "; objectId: " + name + "; scopeType: " + scope + ';';
    };
    const QByteArray toBox = Sandbox::value("visualElement", link("VisualElement", "box1", "Screen"));
    const QByteArray numbers = Sandbox::object("NumberVariable", "speed", {}, "Project");
    const Sandbox good;
    good.makeProject(
        goodElements() + text("own", "xBinding", "0304box1.x")
            + text("inGroup", "xBinding", "0304group1.box2.x")
            + text("onScreen", "xBinding", "0304Main.box1.x")
            + text("screen", "visibleBinding", "<0304Main.width><0101>><02041>")
            + Sandbox::object("CheckButton", "free", toBox)
            + Sandbox::object("ModbusCommands", "commands", Sandbox::value("commands", "readSpeed|0103")),
        numbers
            + Sandbox::object("MappingVariable", "map",
                              Sandbox::value("inputRegMap", "<02047531><0406speed><02047532><0304box2.x>"),
                              "Project"));
    EXPECT_EQ(good.run({u"check"_s, pump}).out, QString());

    const Sandbox bad;
    bad.makeProject(
        goodElements() + text("value", "textBinding", "<0502concat><0407gone><0101,><0407gone><0101)>")
            + text("element", "xBinding", "0304box1.box2.x") + text("screen", "xBinding", "0304Main.away.x")
            + Sandbox::object(
                "Button", "button",
                toBox
                    + Sandbox::value("pressedState",
                                     "name: away; | name: box1; propertyValues: propName%3A "
                                     "size%3B propValue%3A small%3B; | name: box1; "
                                     "propertyValues: propName%3A hue%3B propValue%3A red%3B; | "
                                     "name: box1; propertyValues: propName%3A opacity%3B "
                                     "propValue%3A 0%3B; | name: box1; propertyValues: "
                                     "propName%3A radius%3B propValue%3A -4%3B;"))
            + Sandbox::object("CheckButton", "check",
                              toBox + Sandbox::value("variable", link("BooleanVariable", "speed", "Project")))
            + Sandbox::object("Action", "action",
                              Sandbox::value("propertyChanges", "elementName: box1; propertyName: color; "
                                                                "valueString: cmVkaXNo;")),
        numbers
            + Sandbox::object("MappingVariable", "map", Sandbox::value("coilMap", "<02041><0403gone>"),
                              "Project")
            + Sandbox::object("NumberVariable", "text", Sandbox::value("value", "12 V"), "Project"));
    const QStringList expected{
        u"Main.check: variable: \"speed\" is of the class NumberVariable, and the link needs an object of "
        u"the "
        "class BooleanVariable."_s,
        u"text: value: \"12 V\" is no number that the device can hold."_s,
        u"map: coilMap: Cannot find \"gone\" in the project."_s,
        u"Main.button: pressedState: Cannot find element \"away\" in the screen."_s,
        u"Main.button: pressedState: \"small\" is no value for the property \"size\" of \"box1\"."_s,
        u"Main.button: pressedState: \"box1\" has no property \"hue\"."_s,
        u"Main.button: pressedState: warning: \"-4\" is out of range for \"radius\" of \"box1\", which takes "
        "numbers from 0 on."_s,
        u"Main.value: textBinding: Cannot find \"gone\" in the project."_s,
        u"Main.element: xBinding: Cannot find element \"box1.box2\" in the screen."_s,
        u"Main.screen: xBinding: Cannot find element \"Main.away\" in the screen."_s,
        u"Main.action: propertyChanges: \"redish\" is no value for the property \"color\" of \"box1\"."_s,
    };
    EXPECT_EQ(bad.run({u"check"_s, pump}).out, expected.join(u'\n') + u'\n');
}

//! Threads look at parts of it: the order stays that of the file, and what one part feeds another knows.
TEST(CheckVerb, joinsWhatTheThreadsFind)
{
    constexpr int screens = 12;
    const QByteArray deep =
        QByteArray("<0101(>").repeated(2000) + "<02041>" + QByteArray("<0101)>").repeated(2000);
    QByteArray elements =
        Sandbox::object("DataLogging", "feeder", Sandbox::value("variable", "objectId: logMain;"))
        + Sandbox::object("Text", "deep", Sandbox::value("rotationBinding", deep))
        + Sandbox::object("Text", "lost", Sandbox::value("textBinding", "0407gone"));
    for (int i = 0; i < 60; ++i) {
        elements += Sandbox::object("Text", "text" + QByteArray::number(i));
    }
    QByteArray variables = Sandbox::object("LogVariable", "unfed", {}, "Project");
    for (int i = 0; i < 700; ++i) {
        variables += Sandbox::object("NumberVariable", "number" + QByteArray::number(i), {}, "Project");
    }
    for (int i = 0; i < screens; ++i) {
        variables += Sandbox::object("LogVariable", "logS" + QByteArray::number(i + 10), {}, "Project");
    }
    const Sandbox sandbox;
    sandbox.makeProject(elements, variables);
    QByteArray text = sandbox.read(pump);
    const qsizetype begin = text.indexOf("<Screen>");
    const qsizetype end = text.indexOf("</Screen>") + 9;
    const QByteArray screen = text.sliced(begin, end - begin);
    QByteArray all;
    QStringList lost;
    QStringList unreadable;
    for (int i = 0; i < screens; ++i) {
        const QByteArray name = "S" + QByteArray::number(i + 10);
        all += QByteArray(screen).replace("Main", name);
        const QString path = QString::fromLatin1(name);
        lost.append(path + u".lost: textBinding: Cannot find \"gone\" in the project."_s);
        unreadable.append(path
                          + u".deep: rotationBinding: The generated code cannot be read by the device: "
                            "It is nested more than 1000 levels deep."_s);
    }
    sandbox.write(pump, text.replace(begin, end - begin, all).replace("objectId: Main;", "objectId: S10;"));
    const QStringList expected =
        lost + QStringList{u"unfed: warning: No element on any screen feeds this log."_s} + unreadable;
    EXPECT_EQ(sandbox.run({u"check"_s, pump}).out, expected.join(u'\n') + u'\n');
}

TEST(CheckVerb, knowsTheDeviceAndTheFieldbuses)
{
    const auto channel = [](const char *className, const char *name, const char *number) {
        return Sandbox::object(className, name, Sandbox::value("channel", number));
    };
    const auto variable = [](const QByteArray &className, const QByteArray &name, const QByteArray &property,
                             const QByteArray &text) {
        return Sandbox::object(className, name, Sandbox::value(property, text), "Project");
    };
    const auto point = [&](const QByteArray &name, const QByteArray &identifier) {
        return Sandbox::object("BACnetObject", name,
                               Sandbox::value("objectID", identifier) + Sandbox::value("bacnetObjName", name)
                                   + Sandbox::value("properties", "<0207cHJlc2VudC12YWx1ZQ==><0207cmVhbA=="
                                                                  "><0406speed>"),
                               "Project");
    };
    // PGN 1, priority 6, source 0, and one SPN of 16 bits from a byte on.
    const auto signal = [&](const QByteArray &name, const QByteArray &spn, const QByteArray &byte) {
        return variable("CANVariable", name, "parameterMap",
                        "<02041><02046><02040><0204" + spn + "><0207><0204" + byte
                            + "><02041><020410><02050><02050><02051><02051>");
    };
    const QByteArray box =
        Sandbox::value("visualElement", "filterType: VisualElement; objectId: box1; scopeType: Screen;");
    const Sandbox sandbox;
    sandbox.makeProject(
        goodElements() + channel("AlarmOutput", "beeper", "99") + channel("AnalogInput", "probe", "-3")
            + channel("CANBusDevice", "bus", "1") + channel("EthernetPort", "net", "1")
            + channel("SerialCOMPort", "port1", "2") + channel("SerialCOMPort", "port2", "2")
            + Sandbox::object("Rectangle", "frame",
                              Sandbox::value("opacity", "300") + Sandbox::value("radius", "-5"))
            + Sandbox::object("Button", "button",
                              box + Sandbox::value("pressed", "<0406speed><0407word><0406speed><0207MTI=>"))
            + Sandbox::object("Text", "shown",
                              Sandbox::value("visibleBinding", "0407word")
                                  + Sandbox::value("xBinding", "0406map")
                                  + Sandbox::value("yBinding", "<0502getLogMax><0406speed><0101)>")
                                  + Sandbox::value("rotationBinding", "<0502getValueAt><0101)>"))
            + Sandbox::object("Text", "compared",
                              Sandbox::value("visibleBinding", "<0101(><0407word><0101)><0101==><0207YQ==>")),
        variable("NumberVariable", "speed", "value", "1") + variable("StringVariable", "word", "value", "a")
            + variable("LogVariable", "history", "interval", "100")
            + variable("BACnetDevice", "panel", "bacnetType", "BACnetIP")
            + variable("MappingVariable", "map", "coilMap", "<02041><0406speed>") + point("level", "2,1")
            + point("other", "2, 01") + point("wrong", "AI1") + signal("engine", "A", "1")
            + signal("oil", "B", "2") + signal("water", "C", "4"));
    const ProgramRun check = sandbox.run({u"check"_s, pump, u"--json"_s});
    EXPECT_EQ(check.code, 1);
    QStringList found;
    for (const auto &problem : check.json()[u"problems"_s].toArray()) {
        found.append(problem[u"severity"_s].toString() + u' ' + problem[u"code"_s].toString() + u' '
                     + problem[u"object"_s].toString() + u'.' + problem[u"property"_s].toString());
    }
    EXPECT_EQ(found.join(u'\n'), uR"(error value.range history.interval
error bacnet.identifier wrong.objectID
error channel.shared Main.port1.channel
error channel.shared Main.port2.channel
error value.range Main.probe.channel
warning appearance.range Main.frame.opacity
warning appearance.range Main.frame.radius
warning model.lacks engine.
warning model.lacks oil.
warning model.lacks panel.
warning model.lacks water.
error channel.missing Main.beeper.channel
error channel.missing Main.bus.channel
error channel.missing Main.net.channel
error bacnet.taken other.objectID
warning can.overlap oil.parameterMap
warning modbus.type map.coilMap
warning expression.type Main.button.pressed
warning expression.fieldbus Main.shown.xBinding
warning expression.log Main.shown.yBinding
warning expression.arguments Main.shown.rotationBinding
warning expression.condition Main.shown.visibleBinding
warning log.unfed history.)"_s);
    EXPECT_EQ(sandbox.run({u"build"_s, pump, u"-o"_s, u"out"_s}).code, 1);

    // Warnings are printed, and fail neither the check nor the build.
    const Sandbox warned;
    warned.makeProject(goodElements()
                       + Sandbox::object("Rectangle", "frame", Sandbox::value("opacity", "300")));
    const ProgramRun mild = warned.run({u"check"_s, pump});
    EXPECT_EQ(mild.out, u"Main.frame: opacity: warning: opacity takes numbers from 10 to 100, not 300.\n"_s);
    EXPECT_EQ(mild.code, 0);
    EXPECT_EQ(warned.run({u"build"_s, pump, u"-o"_s, u"out"_s}).code, 0);

    // A model with fewer channels says which elements move.
    const Sandbox moved;
    moved.makeProject(goodElements() + channel("PwmOutput", "fan", "4") + channel("AlarmOutput", "horn", "2")
                      + channel("AlarmOutput", "lamp", "1"));
    moved.write(u"script"_s, "model VTR 38-K\n");
    EXPECT_EQ(moved.run({u"edit"_s, pump, u"script"_s}).out,
              u"Main.horn: has no channel 2 here, and none is free\n"
              "Main.fan: moved from channel 4 to 1\n"_s);
}

TEST(CheckVerb, wantsTheModelToBeInstalled)
{
    const Sandbox sandbox;
    sandbox.makeProject(goodElements());
    QByteArray text = sandbox.read(pump);
    text.replace("name: VTR 50-K;", "name: Other %1;");
    sandbox.write(pump, text);
    EXPECT_EQ(sandbox.run({u"check"_s, pump}).out,
              u"Pump: configuration: The device model \"Other %1\" is not available.\n"_s);
}

TEST(ProjectFile, isRefusedWithPlaceAndReason)
{
    const Sandbox sandbox;
    sandbox.makeProject(goodElements());
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
         u"The file \"nix %1\" does not exist. Name the .kdproj file of a project; \"corvex new\" makes one."_s},
        {u"Pump"_s, u"\"Pump\" is not a file. Did you mean \"Pump/Pump.kdproj\"?"_s},
        {u"."_s, u"\".\" is not a file. Name the .kdproj file of a project."_s},
        {u"/dev/null"_s, u"\"/dev/null\" is not a file. Name the .kdproj file of a project."_s},
        {u"empty"_s,
         u"empty:1:1: The text ends before its root element does; it is empty or was cut off. Mend the file at that place, or take it from a copy."_s},
        {u"cut"_s, u"cut:19:"_s},
        {u"text"_s, u"text:1:1: This is no XML."_s},
        {u"latin1"_s, u"latin1:2:10: The bytes here are not UTF-8"_s},
        {u"utf16"_s, u"utf16:1:1: The text is UTF-16; only UTF-8 is read."_s},
        {u"root"_s, u"root:1:1: The root element is \"Screen\" where \"Project\" is expected."_s},
        {u"bomb"_s, u"bomb:1:1: Document types and entities are not accepted."_s},
        {u"deep"_s, u"deep:1:1543: Elements are nested deeper than 512."_s},
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

TEST(FmtVerb, writesTheCanonicalFormAndNothingElse)
{
    const Sandbox sandbox;
    sandbox.makeProject(goodElements() + Sandbox::object("Gauge", "gauge1", Sandbox::value("needle", "red")));
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

    // Version control may have changed all line ends; some of them are another matter.
    const QByteArray unixEnds = QByteArray(canonical).replace("\r\n", "\n");
    sandbox.write(pump, unixEnds);
    EXPECT_EQ(sandbox.run({u"fmt"_s, u"--check"_s, pump}).code, 0);
    sandbox.write(pump, QByteArray(unixEnds).replace("name=\"id\"", "name=\"id\" "));
    EXPECT_EQ(sandbox.run({u"fmt"_s, pump}).code, 0);
    EXPECT_EQ(sandbox.read(pump), unixEnds);
    sandbox.write(pump, QByteArray(canonical).replace("</List>\r\n", "</List>\n"));
    EXPECT_EQ(sandbox.run({u"fmt"_s, u"--check"_s, pump}).code, 1);
}

TEST(FmtVerb, findsADifferenceWhereverItIs)
{
    const Sandbox sandbox;
    QByteArray elements = goodElements();
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

TEST(FmtVerb, losesNothingUnlessItIsTold)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::object("Text", "title", Sandbox::value("shadow", "2")));
    const QByteArray before = sandbox.read(pump);
    const ProgramRun refused = sandbox.run({u"fmt"_s, pump});
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.out, QString());
    EXPECT_EQ(
        refused.error,
        u"Pump/Pump.kdproj:%1:1: Main.title: The property \"shadow\" is not known.\n"
        "corvex: \"Pump/Pump.kdproj\" holds what this version does not know and would lose; it stays as it "
        "is. Mend these places, or write it all the same with --force.\n"_s.arg(
            sandbox.lineOf(pump, "shadow")));
    EXPECT_EQ(sandbox.read(pump), before);
    EXPECT_EQ(sandbox.run({u"fmt"_s, u"--force"_s, pump}).code, 0);
    EXPECT_THAT(sandbox.read(pump).toStdString(), testing::Not(HasSubstr("shadow")));

    // Of two objects in one place the second would replace the first.
    const QByteArray twice = sandbox.read(pump).replace("</Object>", "<Configuration/></Object>");
    sandbox.write(pump, twice);
    EXPECT_THAT(sandbox.run({u"fmt"_s, pump}).error.toStdString(), HasSubstr("holds one object"));
    EXPECT_EQ(sandbox.read(pump), twice);
}

TEST(FmtVerb, leavesTheFileWholeWhenThereIsNoRoom)
{
    const Sandbox sandbox;
    sandbox.makeProject(goodElements());
    const QByteArray before = sandbox.read(pump);
    // What is printed would go into the file that gets the number of a closed stream.
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
