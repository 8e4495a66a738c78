// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Halvane::Corvex::Test;
using namespace Qt::StringLiterals;

namespace {

const QString pump = u"Pump/Pump.kdproj"_s;

} // namespace

TEST(CheckVerb, PrintsEveryProblemOnOneLine)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::goodElements());
    const ProgramRun good = sandbox.run({u"check"_s, pump});
    EXPECT_EQ(good.out + good.error, QString());
    EXPECT_EQ(good.code, 0);

    const Sandbox other;
    const QByteArray nested =
        QByteArray("<0101(>").repeated(5000) + "<02041>" + QByteArray("<0101)>").repeated(5000);
    other.makeProject(Sandbox::goodElements() + Sandbox::object("Gauge", "gauge1")
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
        u"Main: line %1, column 1: No plug-in provides the class \"Gauge\"; the item is kept unchanged."_s
            .arg(gauge),
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
        u"Main.turned: rotationBinding: The device cannot read the generated code: It is nested more "
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

TEST(CheckVerb, ChecksReferencesBetweenParts)
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
        Sandbox::goodElements() + text("own", "xBinding", "0304box1.x")
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
        Sandbox::goodElements()
            + text("value", "textBinding", "<0502concat><0407gone><0101,><0407gone><0101)>")
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
                                     "propName%3A radius%3B propValue%3A -4%3B; | name: box1; "
                                     "propertyValues: propName%3A xBinding%3B propValue%3A 0406speed%3B;"))
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
        u"text: value: \"12 V\" is not a number that the device supports."_s,
        u"map: coilMap: Cannot find \"gone\" in the project."_s,
        u"Main.button: pressedState: Cannot find element \"away\" in the screen."_s,
        u"Main.button: pressedState: \"small\" is not a valid value for the property \"size\" of \"box1\"."_s,
        u"Main.button: pressedState: \"box1\" has no property \"hue\"."_s,
        u"Main.button: pressedState: warning: \"-4\" is out of range for \"radius\" of \"box1\", which "
        "takes numbers of at least 0."_s,
        u"Main.button: pressedState: warning: The device does not set \"xBinding\" of \"box1\" here."_s,
        u"Main.value: textBinding: Cannot find \"gone\" in the project."_s,
        u"Main.element: xBinding: Cannot find element \"box1.box2\" in the screen."_s,
        u"Main.screen: xBinding: Cannot find element \"Main.away\" in the screen."_s,
        u"Main.action: propertyChanges: \"redish\" is not a valid value for the property \"color\" of \"box1\"."_s,
    };
    EXPECT_EQ(bad.run({u"check"_s, pump}).out, expected.join(u'\n') + u'\n');
}

//! Threads check parts of the project. The order must be that of the file, and each part must know data from
//! the others.
TEST(CheckVerb, CombinesTheResultsOfTheThreads)
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
        unreadable.append(
            path
            + u".deep: rotationBinding: The device cannot read the generated code: It is nested more than "
              "1000 levels deep."_s);
    }
    sandbox.write(pump, text.replace(begin, end - begin, all).replace("objectId: Main;", "objectId: S10;"));
    const QStringList expected =
        lost + QStringList{u"unfed: warning: No element on any screen feeds this log."_s} + unreadable;
    EXPECT_EQ(sandbox.run({u"check"_s, pump}).out, expected.join(u'\n') + u'\n');
}

TEST(CheckVerb, ChecksTheDeviceAndTheFieldbuses)
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
    // PGN 1, priority 6, source 0, and one SPN with 16 bits, beginning at a byte.
    const auto signal = [&](const QByteArray &name, const QByteArray &spn, const QByteArray &byte) {
        return variable("CANVariable", name, "parameterMap",
                        "<02041><02046><02040><0204" + spn + "><0207><0204" + byte
                            + "><02041><020410><02050><02050><02051><02051>");
    };
    const QByteArray box =
        Sandbox::value("visualElement", "filterType: VisualElement; objectId: box1; scopeType: Screen;");
    const Sandbox sandbox;
    sandbox.makeProject(
        Sandbox::goodElements() + channel("AlarmOutput", "beeper", "99")
            + channel("AnalogInput", "probe", "-3") + channel("CANBusDevice", "bus", "1")
            + channel("EthernetPort", "net", "1") + channel("SerialCOMPort", "port1", "2")
            + channel("SerialCOMPort", "port2", "2")
            + Sandbox::object("Rectangle", "frame",
                              Sandbox::value("opacity", "300") + Sandbox::value("radius", "-5"))
            + Sandbox::object("Button", "button",
                              box
                                  + Sandbox::value("pressed",
                                                   "<0406speed><0407word><0406speed><0207MTI=>"
                                                   "<0306box1.opacity><020432><0307box1.id><0407word>"))
            + Sandbox::object("Text", "shown",
                              Sandbox::value("visibleBinding", "0407word")
                                  + Sandbox::value("xBinding", "0406map")
                                  + Sandbox::value("yBinding", "<0502getLogMax><0406speed><0101)>")
                                  + Sandbox::value("rotationBinding", "<0502getValueAt><0101)>"))
            + Sandbox::object("Text", "compared",
                              Sandbox::value("visibleBinding", "<0101(><0407word><0101)><0101==><0207YQ==>"))
            + Sandbox::object("Text", "meant",
                              Sandbox::value("textBinding", "<0502concat><0406speed><0101==><02031><0101)>"))
            + Sandbox::object("Text", "dyed",
                              Sandbox::value("visibleBinding", "<0308box1.color><0101==><0208FF1D3040>"))
            + Sandbox::object("Text", "dyedWell",
                              Sandbox::value("visibleBinding", "<0308box1.color><0101==><0207IzFkMzA0MA==>")),
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
warning expression.percent Main.button.pressed
warning expression.target Main.button.pressed
warning expression.type Main.button.pressed
warning expression.fieldbus Main.shown.xBinding
warning expression.log Main.shown.yBinding
warning expression.arguments Main.shown.rotationBinding
warning expression.condition Main.shown.visibleBinding
warning expression.meaning Main.meant.textBinding
warning expression.color Main.dyed.visibleBinding
warning log.unfed history.)"_s);
    EXPECT_EQ(sandbox.run({u"build"_s, pump, u"-o"_s, u"out"_s}).code, 1);

    // Warnings are printed but do not fail the check or the build.
    const Sandbox warned;
    warned.makeProject(Sandbox::goodElements()
                       + Sandbox::object("Rectangle", "frame", Sandbox::value("opacity", "300")));
    const ProgramRun mild = warned.run({u"check"_s, pump});
    EXPECT_EQ(mild.out, u"Main.frame: opacity: warning: opacity takes numbers from 10 to 100, not 300.\n"_s);
    EXPECT_EQ(mild.code, 0);
    EXPECT_EQ(warned.run({u"build"_s, pump, u"-o"_s, u"out"_s}).code, 0);

    // For a model with fewer channels, the output lists the elements that get another one.
    const Sandbox moved;
    moved.makeProject(Sandbox::goodElements() + channel("PwmOutput", "fan", "4")
                      + channel("AlarmOutput", "horn", "2") + channel("AlarmOutput", "lamp", "1"));
    moved.write(u"script"_s, "model VTR 38-K\n");
    EXPECT_EQ(moved.run({u"edit"_s, pump, u"script"_s}).out,
              u"Main.horn: has no channel 2 here, and none is free\n"
              "Main.fan: moved from channel 4 to 1\n"_s);
}

TEST(CheckVerb, RequiresAnInstalledModel)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::goodElements());
    QByteArray text = sandbox.read(pump);
    text.replace("name: VTR 50-K;", "name: Other %1;");
    sandbox.write(pump, text);
    EXPECT_EQ(sandbox.run({u"check"_s, pump}).out,
              u"Pump: configuration: The device model \"Other %1\" is not available.\n"_s);
}

TEST(CheckVerb, CountsApprovedProblemsApart)
{
    const Sandbox sandbox;
    sandbox.makeProject(Sandbox::goodElements()
                        + Sandbox::object("Text", "faded", Sandbox::value("opacity", "5"))
                        + Sandbox::object("Text", "bad name"));
    const QString fadedLine = u"Main.faded: opacity: warning: opacity takes numbers from 10 to 100, not 5."_s;
    const ProgramRun before = sandbox.run({u"check"_s, pump});
    EXPECT_TRUE(before.out.contains(fadedLine)) << qPrintable(before.out);
    const ProgramRun approved = sandbox.run(
        {u"approve"_s, pump, u"appearance.range"_s, u"Main.faded.opacity"_s, u"--reason"_s, u"thin"_s});
    EXPECT_EQ(approved.error + approved.out, QString());
    EXPECT_EQ(approved.code, 0);
    EXPECT_EQ(sandbox.run({u"approve"_s, pump, u"name.format"_s, u"Main.bad name.id"_s}).code, 0);

    const ProgramRun after = sandbox.run({u"check"_s, pump});
    EXPECT_EQ(after.code, 1) << "an error stays one";
    EXPECT_FALSE(after.out.contains(fadedLine));
    EXPECT_TRUE(after.out.contains(u"must be a letter. (approved)\n0 problems, 2 approved\n"_s))
        << qPrintable(after.out);
    const QJsonArray problems = sandbox.run({u"check"_s, pump, u"--json"_s}).json()[u"problems"_s].toArray();
    ASSERT_EQ(problems.size(), 2);
    EXPECT_TRUE(problems[0][u"approved"_s].toBool());
    EXPECT_EQ(problems[0][u"reason"_s].toString(), u"thin"_s);
    EXPECT_EQ(problems[0][u"fixes"_s].toArray(), QJsonArray{u"Set to 10, the smallest value"_s});
    EXPECT_TRUE(sandbox.run({u"build"_s, pump, u"-o"_s, u"built"_s})
                    .error.contains(u"Errors prevent a build even if they are approved."_s));

    EXPECT_EQ(sandbox.run({u"rename"_s, pump, u"Main.faded"_s, u"pale"_s, u"--force"_s}).code, 0);
    EXPECT_TRUE(sandbox.run({u"check"_s, pump}).out.contains(u", 2 approved\n"_s));
    EXPECT_EQ(
        sandbox.run({u"approve"_s, pump, u"appearance.range"_s, u"Main.pale.opacity"_s, u"--withdraw"_s})
            .code,
        0);
    EXPECT_TRUE(sandbox.run({u"check"_s, pump}).out.contains(u"1 problem, 1 approved\n"_s));
    const ProgramRun none = sandbox.run({u"approve"_s, pump, u"name.taken"_s, u"Main.pale.opacity"_s});
    EXPECT_EQ(none.code, 1);
    EXPECT_TRUE(none.error.contains(u"It has: appearance.range Main.pale.opacity."_s))
        << qPrintable(none.error);
}
