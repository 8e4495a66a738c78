// SPDX-License-Identifier: MIT
#include "TestBuild.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QTcpServer>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace testing;

namespace Halvane::Corvex::Preview {

namespace {

using Common::EnumHelper;

//! A build from somebody else, with a foreign file next to it, and a server that waits for requests.
class BuildGuardTest : public Test
{
protected:
    BuildGuardTest()
    {
        build.addVariable(u"reached"_s, EnumHelper::IntegerVariable, 0);
        build.writeConfiguration();
        outside.write(u"Beside.qml"_s, "import QtQuick 2.0\nItem { Component.onCompleted: "
                                       "qmlViewer.setVariableValue('reached', 1, 2) }");
        outside.write(u"beside.js"_s, "function f() { return 1; }\nf();\n");
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(outside.path(u"beside.png"_s));
        picture.save(build.path(u"own.png"_s));
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
    }

    QByteArray server() const { return "http://127.0.0.1:" + QByteArray::number(m_server.serverPort()); }
    static QByteArray fileUrl(const QString &path) { return QUrl::fromLocalFile(path).toEncoded(); }

    //! The problems of a screen with this body.
    QStringList problemsOf(const QByteArray &body, const char *script = "")
    {
        build.addScreen("Main", body);
        TestPanel panel(build);
        EXPECT_TRUE(panel.isOpen);
        EXPECT_THAT(panel.run("wait 100; expect reached 0; expect screen Main"), IsEmpty());
        EXPECT_THAT(panel.run(script), IsEmpty());
        QTest::qWait(20);
        panel.session.settle();
        return panel.problems();
    }

    TestBuild build;
    TestBuild outside;
    QTcpServer m_server;
};

} // namespace

TEST_F(BuildGuardTest, AllowsOnlyTheFilesOfTheBuild)
{
    // %1 is an address and %2 that of its folder. XMLHttpRequest cannot read files at all.
    static constexpr const char *documents[] = {
        "Image { source: '%1' }",
        "Image { source: 'own.png'; Component.onCompleted: source = '%1' }",
        "Text { textFormat: Text.StyledText; text: 'a<img src=\"%1\">b' }",
        "Component.onCompleted: Qt.createComponent('%1')",
        "Component.onCompleted: Qt.openUrlExternally('%1')",
        "Component.onCompleted: { var r = new XMLHttpRequest(); r.open('GET', '%1'); r.send(); }",
        "Component.onCompleted: Qt.createQmlObject('import QtQuick 2.0; Loader { source: \"%1\" }', "
        "qml_Main)",
        "Component.onCompleted: Qt.createQmlObject('import QtQuick 2.0; FontLoader { source: \"%1\" }', "
        "qml_Main)",
        "Component.onCompleted: Qt.createQmlObject('import QtQuick 2.0; BorderImage { source: \"%1\" }', "
        "qml_Main)",
        "Component.onCompleted: Qt.createQmlObject('import \"%2\" as Far; Far.Beside {}', qml_Main)",
        "Component.onCompleted: Qt.createQmlObject('import QtQuick 2.0; import \"%2/beside.js\" as Far; Item "
        "{}', "
        "qml_Main)",
    };
    for (const QByteArray document : documents) {
        for (const QByteArray &folder : {server(), fileUrl(outside.path())}) {
            const QByteArray address = folder + (document.contains("%2/") ? "/beside.js" : "/Beside.qml");
            const QByteArray body = QByteArray(document).replace("%1", address).replace("%2", folder);
            if (body.contains("'GET', 'file:") || body.contains("<img src=\"file:")) {
                continue;
            }
            EXPECT_THAT(problemsOf(body),
                        Contains(u"Main: \"%1\" was not opened: the preview only reads the files of "
                                 "the build."_s.arg(QString::fromUtf8(address))))
                << body.constData();
            EXPECT_FALSE(m_server.hasPendingConnections()) << body.constData();
        }
    }
}

TEST_F(BuildGuardTest, AllowsNothingForAMissingFolder)
{
    BuildGuard guard;
    const QUrl file = QUrl::fromLocalFile(outside.path(u"beside.png"_s));
    guard.allow({outside.path(u"gone"_s), QString()});
    EXPECT_NE(guard.intercept(file, QQmlAbstractUrlInterceptor::UrlString), file);
    guard.allow({outside.path()});
    EXPECT_EQ(guard.intercept(file, QQmlAbstractUrlInterceptor::UrlString), file);
}

TEST_F(BuildGuardTest, AllowsOnlyTheModulesOfScreens)
{
    build.write(u"worker.js"_s, "Qt.include('" + fileUrl(outside.path(u"beside.js"_s)) + "')");
    // Some are part of the Qt libraries; others are plug-ins, if they are installed.
    static constexpr const char *documents[] = {
        "import QtQml.WorkerScript 2.0; WorkerScript { source: 'worker.js' }",
        "import QtQml.WorkerScript; WorkerScript { source: 'worker.js' }",
        "import QtQml; WorkerScript { source: 'worker.js' }",
        "import QtQuick 2.15; WorkerScript { source: 'worker.js' }",
        "import QtQuick.Window 2.15; Window {}",
        "import Qt.labs.folderlistmodel 2.0; FolderListModel {}",
        "import QtQuick.Controls; Button {}",
    };
    for (const char *document : documents) {
        const QByteArray body = document;
        EXPECT_THAT(problemsOf("Component.onCompleted: Qt.createQmlObject(\"" + body + "\", qml_Main)"),
                    ElementsAre(ResultOf([](const QString &problem) { return problem.toStdString(); },
                                         HasSubstr("failed to create object"))))
            << document;
    }
}

TEST_F(BuildGuardTest, ReadsFilesOfTheBuild)
{
    const QString far = outside.path(u"beside.png"_s);
    ASSERT_TRUE(QFile::link(far, build.path(u"link.png"_s)));
    const auto address = [this](const QString &name) { return QString::fromUtf8(fileUrl(build.path(name))); };
    build.write(u"qmldir"_s, "module Sent\nplugin machinecode\nBeside 1.0 Beside.qml\n");
    EXPECT_THAT(problemsOf("Image { objectName: 'own'; source: 'own.png' }\n"
                           "Image { objectName: 'link'; source: 'link.png' }\n"
                           "Text { objectName: 'text'; text: '<img src=\""
                               + fileUrl(far)
                               + "\" width=\"800\">' }\n"
                                 "Gauge { objectName: 'box'; Component.onCompleted: visible = false }\n"
                                 "Component.onCompleted: Qt.openUrlExternally('own.png')\n",
                           "expect own.status 1; expect link.status 3; expect box.visible false; expect "
                           "text.textFormat 0"),
                UnorderedElementsAre(
                    u"The preview does not support the class \"Gauge\" and shows boxes for its elements."_s,
                    u"Main: \"%1\" was not read: the preview only has the modules of the device."_s.arg(
                        build.path(u"qmldir"_s)),
                    u"Main: \"%1\" was not opened: the preview only reads the files of the build."_s.arg(
                        address(u"link.png"_s)),
                    u"Main.link: QML Image: Cannot open: qrc:/refused/%1"_s.arg(address(u"link.png"_s)),
                    u"Main: \"%1\" was not shown: the preview starts no other programs."_s.arg(
                        address(u"own.png"_s))));
}

TEST_F(BuildGuardTest, BlocksLinkedFilesAndWindows)
{
    const QByteArray far = outside.path(u"beside.png"_s).toUtf8();
    build.write(u"drawing.svg"_s,
                "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'>"
                "<image xlink:href='"
                    + far + "' width='8' height='8'/></svg>");
    for (const QString &name : {u"pipe.png"_s, u"Pipe.qml"_s}) {
        ASSERT_EQ(mkfifo(QFile::encodeName(build.path(name)).constData(), 0600), 0);
    }
    const auto startsWith = [](const QString &start) {
        return Contains(ResultOf([](const QString &problem) { return problem.toStdString(); },
                                 StartsWith(start.toStdString())));
    };
    const QStringList problems =
        problemsOf("Image { source: 'drawing.svg' }\nImage { source: 'pipe.png' }\n"
                   "Component.onCompleted: { Qt.createComponent('Pipe.qml'); "
                   "Qt.createQmlObject('import QtQuick 2.15; Window { visible: true }', Qt.application) }");
    EXPECT_THAT(problems,
                startsWith(u"Main: \"%1\" is not drawn: it links to "_s.arg(build.path(u"drawing.svg"_s))));
    EXPECT_THAT(problems, startsWith(u"Main: \"%1\" cannot be read: "_s.arg(build.path(u"pipe.png"_s))));
    EXPECT_THAT(problems, startsWith(u"Main: \"%1\" cannot be read: "_s.arg(build.path(u"Pipe.qml"_s))));
    EXPECT_THAT(problems, startsWith(u"Main: A separate window was not opened"_s));
    for (const QWindow *window : QGuiApplication::topLevelWindows()) {
        EXPECT_FALSE(window->isVisible());
    }

    ASSERT_TRUE(QFile::remove(build.path(u"config.kdrc"_s)));
    ASSERT_EQ(mkfifo(QFile::encodeName(build.path(u"config.kdrc"_s)).constData(), 0600), 0);
    EXPECT_THAT(TestPanel(build).problems(),
                startsWith(u"config.kdrc: \"%1\" cannot be read: "_s.arg(build.path(u"config.kdrc"_s))));
}

} // namespace Halvane::Corvex::Preview
