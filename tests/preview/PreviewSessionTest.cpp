// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileHelper.h"
#include "corvex/preview/ScreenAudit.h"

#include "TestBuild.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace testing;

namespace Halvane::Corvex::Preview {

namespace {

using Common::EnumHelper;

auto startingWith(const char *text)
{
    return ResultOf([](const QString &problem) { return problem.toStdString(); }, StartsWith(text));
}

} // namespace

TEST(PreviewSession, UpdatesOnlyTheUsersOfAVariable)
{
    TestBuild build;
    build.addVariable(u"speed"_s, EnumHelper::FloatVariable, 12.3F);
    build.addVariable(u"keys"_s, EnumHelper::IntegerVariable, 1);
    build.addVariable(u"on"_s, EnumHelper::BooleanVariable, true);
    build.addVariable(u"tint"_s, EnumHelper::ColorVariable, QColor(Qt::red));
    build.writeConfiguration(u"qml_Main"_s);
    build.addScreen("Aside", "");
    build.addScreen("Main", R"(
        property var seen: []
        Text { objectName: "label"
               text: { seen.push(1); return "".concat(qmlViewer.getVariableValue("speed"), " m") } }
        Rectangle { objectName: "box"; width: 10; height: 10
                    visible: qmlViewer.getVariableValue("on")
                    color: qmlViewer.convertToColorFromName(qmlViewer.getVariableValue("tint"))
                    x: qmlViewer.getVariableValue("keys") * 2 }
    )");
    TestPanel panel(build);
    ASSERT_TRUE(panel.isOpen) << qPrintable(panel.error);
    EXPECT_THAT(panel.run("expect screen Main; expect label.text \"12.3 m\"; expect box.x 2; expect seen 1"),
                ElementsAre(startingWith("4: There is no variable")));
    EXPECT_THAT(
        panel.run("set keys 4; expect box.x 8; set on false; expect box.visible false; set tint #00f; "
                  "expect box.color #0000ff; expect tint #FF0000FF; expect Main.seen.length 1"),
        ElementsAre(startingWith("8: ")));
    EXPECT_EQ(panel.session.screenItem()->property("seen").toList().size(), 1);
    EXPECT_THAT(panel.run("set speed 7; expect Main.label.text \"7 m\"; expect label.text 8; set keys x; "
                          "press label; nonsense; wait -1; set label.nothing 3; show Nowhere"),
                ElementsAre(startingWith("3: expected label.text \"8\", but it is \"7 m\""),
                            startingWith("4: "), startingWith("5: Nothing reacts"), startingWith("6: "),
                            startingWith("7: "), startingWith("8: "), startingWith("9: ")));
    EXPECT_EQ(panel.session.screenItem()->property("seen").toList().size(), 2);
}

TEST(PreviewSession, OffersTheFunctionsOfTheDevice)
{
    TestBuild build;
    build.addVariable(u"number"_s, EnumHelper::IntegerVariable, 3);
    build.addVariable(u"flag"_s, EnumHelper::BooleanVariable, true);
    build.writeConfiguration();
    build.addScreen("Main",
                    R"(functions: [ DataLogging { objectName: "logging"; variable: "history"; interval: 1000
                               maxDataPoints: 3; behavior: "OverwriteOldest" } ])");
    TestPanel panel(build);
    EXPECT_THAT(panel.run("set history 5; wait 500; set history 1; wait 1000; set history 7; wait 1000; "
                          "set history 2; wait 1000; set history 9"),
                IsEmpty());
    static constexpr std::pair<const char *, const char *> calls[] = {
        {"getVariableValue('number') + 1", "4"},
        {"getVariableValueString('flag')", "true"},
        {"getVariableValueString('number')", "3"},
        {"convertToColorFromName('red')", "#FFFF0000"},
        {"split('a-b-c', '-', '1')", "b"},
        {"split('a-b', '-', 5)", ""},
        {"replace('a.b.c', '.', '$&')", "a$&b$&c"},
        {"replaceFirst('a.b.c', '.', '')", "ab.c"},
        {"replaceLast('a.b.c', '.', '!')", "a.b!c"},
        {"replaceLast('abc', 'x', '!')", "abc"},
        {"subString(12.345, '0', '4')", "12.3"},
        {"subString('abc', 1)", "bc"},
        {"toUpperCase('\u00e4b')", "\u00c4B"},
        {"toLowerCase('AB')", "ab"},
        {"trim('  a ')", "a"},
        {"length('abc')", "3"},
        {"poly(2, 1, 0, 3)", "13"},
        {"getLogCount('history')", "3"},
        {"getValueAt('history', 0)", "2"},
        {"getValueAt('history', 2)", "1"},
        {"getValueAt('history', 3)", "0"},
        {"getLogMax('history')", "7"},
        {"getLogMin('history')", "1"},
        {"getLogAvg('history') * 3", "10"},
    };
    for (const auto &[call, result] : calls) {
        EXPECT_EQ(panel.evaluate(u"qmlViewer."_s + QString::fromUtf8(call)), QString::fromUtf8(result))
            << call;
    }
    EXPECT_EQ(panel.problems(), QStringList());
}

TEST(PreviewSession, ReportsTheElementWithAProblem)
{
    TestBuild build;
    build.addVariable(u"number"_s, EnumHelper::IntegerVariable, 3);
    build.addVariable(u"broken"_s, EnumHelper::IntegerVariable, QVariant());
    build.addVariable(u"isStuck"_s, EnumHelper::BooleanVariable, false);
    build.writeConfiguration(u"qml_Gone"_s);
    build.write(u"qml_Spoilt.qml"_s,
                "Screen {\n  objectName: \"Spoilt\"\n Text {\n objectName: \"label\"\n width: }\n}\n");
    build.addScreen("Main", R"(
        functions: [
            LogicBuilder { objectName: "pingPong"
                           conditions: [qmlViewer.getVariableValue("number") > 5]
                           onEvaluate: if (conditions[0]) qmlViewer.setVariableValue("number",
                                           qmlViewer.getVariableValue("number") + 1, 2) },
            LogicBuilder { objectName: "stuck"; conditions: [qmlViewer.getVariableValue("isStuck")]
                           onEvaluate: { while (conditions[0]) {} } },
            DataLogging { id: noLog; objectName: "noLog"; variable: "number" },
            Button { objectName: "hang"; visualElement: box; onPressed: { while (true) {} } },
            Button { objectName: "wrong"; visualElement: other
                     onPressed: { qmlViewer.setVariableValue("number", "many", 4);
                                  qmlViewer.assignPropertyValue(other, "x", 3, "left"); } },
            ScreenLoader { objectName: "loader"; visualElement: third; screen: "qml_Nowhere" },
            ScreenLoader { objectName: "again"; visualElement: fourth; screen: "qml_Main" }
        ]
        GroupElement { objectName: "group"
            Text { objectName: "label"; text: qmlViewer.getVariableValue("nobody") }
        }
        Rectangle { objectName: "loop"; width: height + 1; height: width + 1 }
        Rectangle { id: box; objectName: "box"; width: 10; height: 10 }
        Rectangle { id: other; objectName: "other"; x: 20; width: 10; height: 10 }
        Rectangle { id: third; objectName: "third"; x: 40; width: 10; height: 10 }
        Rectangle { id: fourth; objectName: "fourth"; x: 60; width: 10; height: 10 }
        Gauge { objectName: "gauge"; width: 50; height: 50; needle.color: "red"; level: 3; onFull: {} }
        Image { objectName: "picture"; source: "missing.png" }
        // Before it has started, and afterwards.
        property var early: noLog.run()
        Component.onCompleted: noLog.run()
    )");
    TestPanel panel(build);
    ASSERT_TRUE(panel.isOpen) << qPrintable(panel.error);
    EXPECT_THAT(
        panel.run("expect screen Main; expect gauge.level 3; press hang; press wrong; expect number 3; "
                  "press third; set number 6; press fourth; expect screen Main; "
                  "set isStuck true; show Spoilt"),
        ElementsAre(startingWith("11: The screen \"Spoilt\" cannot be shown.")));
    static constexpr const char *expected[] = {
        "config.kdrc: The default screen \"qml_Gone\" is missing.",
        "broken: The value of the variable is not a number",
        "The preview does not support the class \"Gauge\"",
        "Main.noLog: The variable \"number\" is not a log.",
        "Main.group.label: There is no variable \"nobody\".",
        "Main.loop: ",
        "Main.picture: ",
        "Main.hang: A script took longer than 300 ms and was stopped.",
        "Main.stuck: A script took longer than 300 ms and was stopped.",
        "Main.wrong: \"many\" is not a valid value for the variable \"number\".",
        "Main.wrong: \"left\" is not a valid value for the property \"x\".",
        "Main.loader: There is no screen \"qml_Nowhere\".",
        "Main.pingPong: Its rules trigger themselves endlessly.",
        "Spoilt.label: ",
    };
    for (const char *problem : expected) {
        EXPECT_THAT(panel.problems(), Contains(startingWith(problem)));
    }
}

TEST(PreviewSession, ShowsClassesOfPluginsAsTheBuildSays)
{
    TestBuild build;
    build.addVariable(u"number"_s, EnumHelper::IntegerVariable, 3);
    build.writeConfiguration();
    Common::FileHelper::variantToFile(
        QVariantMap{{u"Key"_s, u"Button"_s}, {u"Panel"_s, u"Rectangle"_s}, {u"Odd"_s, u"Nothing"_s}},
        build.path(u"preview.kdrc"_s), false);
    build.addScreen("Main", R"(
        functions: [ Button { objectName: "usual" } ]
        keys: [
            Key { id: qml_key; objectName: "key"; visualElement: qml_panel; litres: 3; face.color: "red"
                  onPressed: qmlViewer.setVariableValue("number", litres, 2)
                  onOverflow: {} }
        ]
        Panel { id: qml_panel; objectName: "panel"; width: 50; height: 50; color: "#ff0000"; border.width: 2
                label: "hot" }
        Odd { objectName: "odd" }
    )");
    for (const bool isAgain : {false, true}) {
        TestPanel panel(build);
        ASSERT_TRUE(panel.isOpen) << qPrintable(panel.error);
        EXPECT_THAT(panel.run("expect panel.color #ff0000; expect panel.label hot; "
                              "expect key.litres 3; set number 7; press panel; expect number 3"),
                    IsEmpty())
            << isAgain;
        EXPECT_THAT(panel.problems(),
                    ElementsAre(startingWith("The preview does not support the class \"Odd\"")));
    }
    build.write(u"preview.kdrc"_s, "rubbish");
    EXPECT_THAT(TestPanel(build).problems(), Contains(startingWith("preview.kdrc: The file is damaged")));
}

TEST(PreviewSession, OpensAnIncompleteBuild)
{
    TestBuild build;
    EXPECT_FALSE(TestPanel(build).isOpen);
    build.addScreen("Main", "");
    EXPECT_THAT(TestPanel(build).problems(), ElementsAre(startingWith("config.kdrc: The file is missing")));
    build.addVariable(u"number"_s, EnumHelper::IntegerVariable, 3);
    build.writeConfiguration();
    QFile file(build.path(u"config.kdrc"_s));
    file.resize(file.size() - 3);
    TestPanel panel(build);
    EXPECT_TRUE(panel.isOpen);
    EXPECT_THAT(panel.problems(), ElementsAre(startingWith("config.kdrc: The file is incomplete")));

    build.writeConfiguration(QString(), u"Plant-one-4.0.0"_s);
    EXPECT_THAT(TestPanel(build).problems(), IsEmpty());
    build.writeConfiguration(QString(), u"Plant-one-4.10.0"_s);
    EXPECT_THAT(TestPanel(build).problems(),
                ElementsAre(startingWith("config.kdrc: The build was made by version 4.10.0, ")));
}

TEST(PreviewSession, SurvivesDocumentsThatAreNotGenerated)
{
    static constexpr std::pair<const char *, const char *> documents[] = {
        {"", "Main: File is empty"},
        {"import QtQuick 1.1\nimport QtQml 2.15 as Q\nQ.QtObject {}",
         "qml_Main.qml: This document does not define a screen."},
        {"import QtQuick 2.0 as Q\nQ.Item { Q.Loader { source: \"qml_Main.qml\" } }",
         "Main: Maximum call stack size exceeded."},
        {"import QtQuick 2.0 as Q\nQ.Item { objectName: \"Main\"; x: { while (true) {} } }",
         "Main: A script took longer than 300 ms and was stopped."},
        {"import QtQuick 2.0 as Q\nQ.Item { objectName: \"Main\"; Q.Component.onCompleted: "
         "Qt.callLater(() => { while (true) {} }) }",
         "Main: A script took longer than 300 ms and was stopped."},
        {"import QtQuick 2.0 as Q\nQ.Item { objectName: \"Main\"; width: 1e9 }",
         "Main: The screen is larger than "},
    };
    for (const auto &[document, problem] : documents) {
        TestBuild build;
        build.writeConfiguration();
        build.write(u"qml_Main.qml"_s, document);
        EXPECT_THAT(TestPanel(build).problems(), Contains(startingWith(problem))) << document;
    }
}

TEST(PreviewSession, KeepsTheSavedValues)
{
    TestBuild build;
    build.addVariable(u"kept"_s, EnumHelper::IntegerVariable, 1, true);
    build.addVariable(u"lost"_s, EnumHelper::IntegerVariable, 1);
    build.addVariable(u"Rectangle.look"_s, EnumHelper::DeviceVariable, u"<0308Main.box.color><0304box.x>"_s);
    build.writeConfiguration();
    build.addScreen("Main", "Rectangle { objectName: \"box\"; color: \"red\" }");
    const QString state = build.path(u"state/kept.json"_s);
    EXPECT_THAT(TestPanel(build, state).run("set kept 5; set lost 5; set box.color blue; set box.x 7"),
                IsEmpty());
    TestPanel panel(build, state);
    EXPECT_THAT(panel.run("expect kept 5; expect lost 1; expect box.color blue; expect box.x 7"), IsEmpty());
}

TEST(PreviewSession, WritesOnlyItsOwnFile)
{
    TestBuild build;
    build.addVariable(u"kept"_s, EnumHelper::IntegerVariable, 1, true);
    build.writeConfiguration();
    build.addScreen("Main", "");
    const QString state = build.path(u"kept.json"_s);
    for (const char *content : {"", "[", "{}", R"({"kept": "1"})", "<Project/>", "\x89PNG\r\n"}) {
        build.write(u"kept.json"_s, content);
        const TestPanel panel(build, state);
        EXPECT_FALSE(panel.isOpen) << content;
        EXPECT_TRUE(panel.error.contains(u"does not contain saved values of a preview"_s))
            << qPrintable(panel.error);
    }
    // A file that was replaced while the panel runs is not written either.
    QFile::remove(state);
    {
        TestPanel panel(build, state);
        EXPECT_THAT(panel.run("set kept 5"), IsEmpty());
        build.write(u"kept.json"_s, "theirs");
        panel.session.flushState();
        EXPECT_THAT(panel.problems(), ElementsAre(startingWith("\"")));
    }
    QFile file(state);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "theirs");
    QFile::remove(state);
    ASSERT_TRUE(QFile::link(build.path(u"elsewhere"_s), state));
    EXPECT_FALSE(TestPanel(build, state).isOpen);
    EXPECT_FALSE(QFile::exists(build.path(u"elsewhere"_s)));
}

TEST(PreviewSession, InspectsItsScreens)
{
    TestBuild build;
    build.writeConfiguration();
    QImage picture(8, 8, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    ASSERT_TRUE(picture.save(build.path(u"frame.png"_s)));
    ASSERT_TRUE(picture.convertToFormat(QImage::Format_RGB32).save(build.path(u"photo.png"_s)));
    build.addScreen("Main", R"(
        Text { objectName: "fits"; text: "a"; width: 50; height: 30; font.pixelSize: 12 }
        Text { objectName: "wide"; text: "much too much"; width: 50; height: 30; font.pixelSize: 12; y: 30 }
        Rectangle { objectName: "gone"; x: 200; width: 10; height: 10 }
        Rectangle { objectName: "cut"; x: 195; width: 10; height: 10 }
        GroupElement { objectName: "group"; x: 100; z: 1
            Rectangle { objectName: "below"; x: 2; y: 2; width: 16; height: 16; radius: 2 }
            Rectangle { objectName: "hidden"; x: 2; y: 2; width: 16; height: 16 }
            Rectangle { objectName: "left"; width: 10; height: 20 }
            Rectangle { objectName: "right"; x: 10; width: 10; height: 20 }
        }
        Rectangle { objectName: "through"; x: 100; y: 40; width: 20; height: 20 }
        Rectangle { objectName: "glass"; x: 100; y: 40; width: 20; height: 20; opacity: 0.9 }
        Rectangle { objectName: "round"; x: 100; y: 40; width: 20; height: 20; radius: 10 }
        Rectangle { objectName: "turned"; x: 100; y: 40; width: 20; height: 20; rotation: 45 }
        Rectangle { objectName: "away"; x: 300; width: 20; height: 20; visible: false }
        Rectangle { objectName: "framed"; x: 150; y: 40; width: 20; height: 20 }
        Image { objectName: "frame"; x: 150; y: 40; width: 20; height: 20; source: "frame.png" }
        Image { objectName: "photo"; x: 150; y: 40; width: 20; height: 20; source: "photo.png" }
    )");
    TestPanel panel(build);
    QStringList found;
    for (const PanelProblem &problem : ScreenAudit::find(panel.session.screenItem())) {
        found.append(problem.toString());
    }
    EXPECT_THAT(found, ElementsAre(startingWith("Main.wide: The text does not fit: it needs "),
                                   startingWith("Main.gone: The element is outside of the screen."),
                                   startingWith("Main.cut: Part"),
                                   startingWith("Main.group.hidden: Other elements completely hide"),
                                   startingWith("Main.group.below: Other elements completely hide"),
                                   startingWith("Main.frame: Other elements completely hide"),
                                   startingWith("Main.framed: Other elements completely hide")));
}

} // namespace Halvane::Corvex::Preview
