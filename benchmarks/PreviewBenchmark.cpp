// SPDX-License-Identifier: MIT
// The preview: its start, and the cost of changing a variable on a screen that shows it everywhere.
#include "corvex/common/files/FileHelper.h"
#include "corvex/preview/PreviewSession.h"

#include "support/Process.h"

#include <QFile>
#include <QProcess>
#include <QQmlComponent>
#include <QQuickItem>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex;
using namespace Halvane::Corvex::Benchmarks;
using namespace Halvane::Corvex::Preview;

namespace {

void startEmpty(benchmark::State &state)
{
    measureProcess(state, QStringLiteral(CORVEX_BENCHMARK_FOLDER "/emptyWindow"), {});
}

//! Built with the tool, like the input of the preview.
QString pumpStation()
{
    static const QTemporaryDir folder;
    static const QString build = folder.filePath(u"build"_s);
    const QString project = QStringLiteral(CORVEX_EXAMPLES "/PumpStation/PumpStation.kdproj");
    static const int result = QProcess::execute(tool(u"corvex"_s), {u"build"_s, project, u"-o"_s, build});
    if (result != 0) {
        qFatal("corvex build has failed: %d", result);
    }
    return build;
}

void startPumpStation(benchmark::State &state)
{
    measureProcess(state, QStringLiteral(CORVEX_BENCHMARK_FOLDER "/firstScreen"), {pumpStation()});
}
BENCHMARK(startEmpty)->Name("preview/empty")->UseManualTime()->Iterations(10);
BENCHMARK(startPumpStation)->Name("preview/PumpStation")->UseManualTime()->Iterations(10);

constexpr int labelCount = 1000;

//! A column of texts, all showing \a text.
QByteArray labels(const QByteArray &text)
{
    QByteArray qml;
    for (int i = 0; i < labelCount; ++i) {
        const QByteArray number = QByteArray::number(i);
        qml += "\tText {\n\t\tobjectName: \"label" + number + "\"\n\t\ty: " + QByteArray::number(i % 100 * 10)
               + "\n\t\t" + text + "\n\t}\n";
    }
    return qml;
}

void writeScreen(const QString &folder)
{
    QFile file(folder + u"/qml_Main.qml"_s);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("%s", qUtf8Printable(file.errorString()));
    }
    file.write("import QtQuick 1.1\nimport RuntimeObjects 2.0\nScreen {\n\tid: qml_Main\n\tobjectName: "
               "\"Main\"\n\twidth: 800\n\theight: 1000\n"
               + labels("text: qmlViewer.getVariableValueString(\"level\")") + "}\n");
    const QVariantMap level{
        {u"type"_s, Common::EnumHelper::IntegerVariable}, {u"value"_s, 0}, {u"persistent"_s, false}};
    Common::FileHelper::variantToFile(QVariantMap{{u"variables"_s, QVariantMap{{u"level"_s, level}}}},
                                      folder + u"/config.kdrc"_s, false);
}

void changeVariable(benchmark::State &state)
{
    const QTemporaryDir folder;
    writeScreen(folder.path());
    PreviewSession session;
    QString error;
    if (!session.open(folder.path(), &error) || !session.screenItem()) {
        state.SkipWithError(qUtf8Printable(error));
    }
    Variable *level = session.panel().variables().find(u"level"_s);
    const QObject *last = session.find(u"label999");
    int value = 0;
    for ([[maybe_unused]] auto _ : state) {
        level->setValue(++value);
        if (last->property("text").toInt() != value) {
            state.SkipWithError("the labels do not follow");
            break;
        }
    }
}
BENCHMARK(changeVariable)->Name("labels/variable")->Unit(benchmark::kMicrosecond);

void setTexts(benchmark::State &state)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nItem {\n\tid: screen\n\tfunction show(value) {\n"
                      "\t\tfor (let i = 0; i < screen.children.length; ++i)\n"
                      "\t\t\tscreen.children[i].text = String(value);\n\t}\n"
                          + labels("text: \"0\"") + "}\n",
                      QUrl(u"file:///texts.qml"_s));
    const std::unique_ptr<QObject> screen(component.create());
    if (!screen) {
        state.SkipWithError(qUtf8Printable(component.errorString()));
    }
    int value = 0;
    for ([[maybe_unused]] auto _ : state) {
        QMetaObject::invokeMethod(screen.get(), "show", Q_ARG(QVariant, ++value));
    }
}
BENCHMARK(setTexts)->Name("labels/texts")->Unit(benchmark::kMicrosecond);

} // namespace
