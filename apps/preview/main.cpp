// SPDX-License-Identifier: MIT
// corvex-preview FOLDER [--audit] [--shot DIR] [--script FILE] [--state FILE] [--temporary DIR] [--report]
// [--trust]: runs a build on the desktop. Opens a window unless an option makes it run unattended.
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/preview/Bounds.h"
#include "corvex/preview/OutsideThread.h"
#include "corvex/preview/StandIns.h"
#include "corvex/preview/window/PreviewWindow.h"

#include "Confinement.h"
#include "Output.h"
#include "Unattended.h"
#include "ValueReport.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QQuickWindow>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Preview;

namespace {

//! Prints the console output of scripts. Of Qt's own messages only a fatal one is printed.
void printMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg || QLatin1StringView(context.category) == "js"_L1
        || QLatin1StringView(context.category) == "qml"_L1) {
        complain(message);
    }
}

//! Checks the arguments before the application object exists, because its kind depends on them.
bool needsNoWindow(int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char *argument) {
        return argument == QByteArrayView("--shot") || argument == QByteArrayView("--script")
               || argument == QByteArrayView("--audit");
    });
}

Exit runInWindow(const QString &folder, const QString &stateFile, bool reportsValues)
{
    PreviewWindow window;
    const std::unique_ptr<ValueReport> report =
        reportsValues ? std::make_unique<ValueReport>(window) : nullptr;
    QString error;
    if (!window.open(folder, stateFile, &error)) {
        complain(error);
        return Exit::File;
    }
    const QSize margin(420, 260); // room for the docks beside the panel
    window.resize(window.session().frame()->size().toSize() + margin);
    window.show();
    return QApplication::exec() == 0 ? Exit::Done : Exit::File;
}

//! Drops the rights that a build does not need. Returns false, after a message, if the system cannot confine
//! the program and the user does not vouch for the build.
bool giveUpRights(const QCommandLineParser &parser, const QString &folder)
{
    OutsideThread::start();
    if (parser.isSet(u"temporary"_s)) {
        StandIns::keepBoxesIn(parser.value(u"temporary"_s));
    } else {
        static const Halvane::Corvex::Common::TemporaryFolder temporary(u"corvex-classes"_s);
        StandIns::keepBoxesIn(QDir::cleanPath(temporary.filePath(QString())));
    }
    const QString boxes = StandIns::boxFolder();
    QDir().mkpath(boxes);
    Bounds::set(boxes);
    QStringList readable{folder};
    if (parser.isSet(u"trust"_s)) {
        readable.append(QFileInfo(folder).absolutePath()); // the next build replaces the folder in here
    }
    const bool isConfined = confine(readable, {boxes});
    if (!isConfined && !parser.isSet(u"trust"_s)) {
        complain(
            u"This system cannot confine programs (Linux can, with Landlock), and the scripts in \"%1\" "
            "may come from anybody. Name the project itself, or add --trust if you trust the author of the "
            "build."_s.arg(folder));
        return false;
    }
    if (!isConfined) {
        complain(u"The scripts of the build are not confined, because this system has no Landlock."_s);
    }
    return true;
}

Exit run(const QCommandLineParser &parser, bool isUnattended)
{
    if (parser.positionalArguments().size() != 1) {
        complain(u"Give exactly one folder of a build."_s);
        return Exit::Usage;
    }
    const QString folder = parser.positionalArguments().constFirst();
    if (!giveUpRights(parser, folder)) {
        return Exit::File;
    }
    if (!isUnattended) {
        return runInWindow(folder, parser.value(u"state"_s), parser.isSet(u"report"_s));
    }
    PreviewSession session;
    QString error;
    if ((parser.isSet(u"state"_s) && !session.keepStateIn(parser.value(u"state"_s), &error))
        || !session.open(folder, &error)) {
        complain(error);
        return Exit::File;
    }
    if (parser.isSet(u"audit"_s)) {
        return runAudit(session);
    }
    return runUnattended(session, parser.value(u"script"_s), parser.value(u"shot"_s));
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(printMessage);
    const bool isUnattended = needsNoWindow(argc, argv);
    if (isUnattended) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Panels are small, and pictures must be the same on every machine.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const std::unique_ptr<QCoreApplication> application(isUnattended ? new QGuiApplication(argc, argv)
                                                                     : new QApplication(argc, argv));
    QCoreApplication::setApplicationName(u"corvex"_s);

    QCommandLineParser parser;
    parser.addOptions({{u"shot"_s, u"Save pictures of all screens."_s, u"DIR"_s},
                       {u"script"_s, u"A script that operates the panel."_s, u"FILE"_s},
                       {u"audit"_s, u"Print the problems of the screens as JSON."_s},
                       {u"state"_s, u"The file for persistent variables."_s, u"PATH"_s},
                       {u"temporary"_s, u"A folder for temporary files."_s, u"DIR"_s},
                       {u"report"_s, u"Print the values of variables when they change, as JSON lines."_s},
                       {u"trust"_s, u"Trust the scripts of the build."_s}});
    parser.addPositionalArgument(u"FOLDER"_s, u"The folder of a build."_s);
    parser.process(*application);
    return int(run(parser, isUnattended));
}
