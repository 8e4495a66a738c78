// SPDX-License-Identifier: MIT
// corvex-preview FOLDER [--audit] [--shot DIR] [--script FILE] [--state FILE] [--temporary DIR] [--trust]:
// runs a build on the desktop, in a window unless there is a picture to take or a script to follow.
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/preview/Bounds.h"
#include "corvex/preview/OutsideThread.h"
#include "corvex/preview/StandIns.h"
#include "corvex/preview/window/PreviewWindow.h"

#include "Confinement.h"
#include "Output.h"
#include "Unattended.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QQuickWindow>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Preview;

namespace {

//! What scripts write to the console; of Qt's own remarks the last one, before it ends the program.
void printMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg || QLatin1StringView(context.category) == "js"_L1
        || QLatin1StringView(context.category) == "qml"_L1) {
        complain(message);
    }
}

//! Before there is an application object, whose kind depends on it.
bool needsNoWindow(int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char *argument) {
        return argument == QByteArrayView("--shot") || argument == QByteArrayView("--script")
               || argument == QByteArrayView("--audit");
    });
}

Exit runInWindow(const QString &folder, const QString &stateFile)
{
    PreviewWindow window;
    QString error;
    if (!window.open(folder, stateFile, &error)) {
        complain(error);
        return Exit::File;
    }
    const QSize margin(420, 260); // for what stands beside the panel
    window.resize(window.session().frame()->size().toSize() + margin);
    window.show();
    return QApplication::exec() == 0 ? Exit::Done : Exit::File;
}

//! Takes from the program what a build does not need. False, once the user has been told, for a build that
//! nobody vouches for on a system that lets every program do everything.
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
        readable.append(QFileInfo(folder).absolutePath()); // where the next build takes its place
    }
    const bool isConfined = confine(readable, {boxes});
    if (!isConfined && !parser.isSet(u"trust"_s)) {
        complain(
            u"This system cannot keep a program from files and networks (Linux does, with Landlock), and "
            "\"%1\" may hold anybody's scripts. Give the project itself, or --trust for a build of which "
            "you know who has made it."_s.arg(folder));
        return false;
    }
    if (!isConfined) {
        complain(u"The scripts of the build are not confined, since this system has no Landlock."_s);
    }
    return true;
}

Exit run(const QCommandLineParser &parser, bool isUnattended)
{
    if (parser.positionalArguments().size() != 1) {
        complain(u"One folder of a build is to be given."_s);
        return Exit::Usage;
    }
    const QString folder = parser.positionalArguments().constFirst();
    if (!giveUpRights(parser, folder)) {
        return Exit::File;
    }
    if (!isUnattended) {
        return runInWindow(folder, parser.value(u"state"_s));
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
    // Panels are small, and their pictures are to be the same everywhere.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const std::unique_ptr<QCoreApplication> application(isUnattended ? new QGuiApplication(argc, argv)
                                                                     : new QApplication(argc, argv));
    QCoreApplication::setApplicationName(u"corvex"_s);

    QCommandLineParser parser;
    parser.addOptions({{u"shot"_s, u"Pictures of all screens."_s, u"DIR"_s},
                       {u"script"_s, u"What to do with the panel."_s, u"FILE"_s},
                       {u"audit"_s, u"What is wrong with the screens, as JSON."_s},
                       {u"state"_s, u"Where persistent variables are kept."_s, u"PATH"_s},
                       {u"temporary"_s, u"A folder for what goes with the program."_s, u"DIR"_s},
                       {u"trust"_s, u"The build is the user's own."_s}});
    parser.addPositionalArgument(u"FOLDER"_s, u"The folder of a build."_s);
    parser.process(*application);
    return int(run(parser, isUnattended));
}
