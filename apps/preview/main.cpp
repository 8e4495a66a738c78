// SPDX-License-Identifier: MIT
// corvex-preview FOLDER [--shot DIR] [--script FILE]: runs a build on the desktop.
#include "Output.h"
#include "Unattended.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQuickWindow>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Preview;

namespace {

//! What scripts write to the console; Qt's own remarks mean nothing to a user.
void printMessage(QtMsgType, const QMessageLogContext &context, const QString &message)
{
    if (QLatin1StringView(context.category) == "js"_L1 || QLatin1StringView(context.category) == "qml"_L1) {
        complain(message);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QStringList unattended{u"--shot"_s, u"--script"_s};
    const bool isUnattended = std::any_of(argv + 1, argv + argc, [&unattended](const char *argument) {
        return unattended.contains(QString::fromLocal8Bit(argument));
    });
    qInstallMessageHandler(printMessage);
    if (isUnattended) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Panels are small, and their pictures are to be the same everywhere.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    application.setApplicationName(u"corvex"_s);

    QCommandLineParser parser;
    parser.addOption(QCommandLineOption(u"shot"_s, u"Pictures of all screens."_s, u"DIR"_s));
    parser.addOption(QCommandLineOption(u"script"_s, u"What to do with the panel."_s, u"FILE"_s));
    parser.addOption(QCommandLineOption(u"state"_s, u"Where persistent variables are kept."_s, u"PATH"_s));
    parser.addPositionalArgument(u"FOLDER"_s, u"The folder of a build."_s);
    parser.process(application);
    if (parser.positionalArguments().size() != 1) {
        complain(u"One folder of a build is to be given."_s);
        return int(Exit::Usage);
    }
    PreviewSession session;
    session.keepStateIn(parser.value(u"state"_s));
    QString error;
    if (!session.open(parser.positionalArguments().constFirst(), &error)) {
        complain(error);
        return int(Exit::File);
    }
    return int(runUnattended(session, parser.value(u"script"_s), parser.value(u"shot"_s)));
}
