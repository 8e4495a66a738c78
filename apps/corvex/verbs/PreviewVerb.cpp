// SPDX-License-Identifier: MIT
#include "corvex/common/files/TemporaryFolder.h"

#include "PreviewProgram.h"
#include "ProjectBuild.h"
#include "terminal/Call.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <QCryptographicHash>
#include <QEventLoop>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QStandardPaths>
#include <QTimer>

#include <csignal>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

// Editors write a file in several steps.
constexpr int calmAfterChange = 300;

bool isUnattended(const Call &call)
{
    return call.isSet(u"shot"_s) || call.isSet(u"script"_s);
}

//! What the panel of a project or a build keeps, wherever the build happens to be.
QString usualStateFile(const QString &path)
{
    const QByteArray digest =
        QCryptographicHash::hash(QFileInfo(path).canonicalFilePath().toUtf8(), QCryptographicHash::Md5)
            .toHex();
    return u"%1/Halvane/Corvex Nova/preview/%2.json"_s.arg(
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), QString::fromLatin1(digest));
}

QStringList programArguments(const Call &call, const QString &folder)
{
    QStringList arguments{folder};
    // What comes of a project was generated right now; the folder of a build may hold anybody's scripts.
    if (folder != call.argument(0) || call.isSet(u"trust"_s)) {
        arguments.append(u"--trust"_s);
    }
    for (const QString &option : {u"shot"_s, u"script"_s, u"state"_s}) {
        if (call.isSet(option)) {
            arguments += {u"--"_s + option, call.value(option)};
        }
    }
    if (!isUnattended(call) && !call.isSet(u"state"_s)) {
        arguments += {u"--state"_s, usualStateFile(call.argument(0))};
    }
    return arguments;
}

//! Builds the project again each time its file changes, until the window is closed.
void follow(const Call &call, const QString &folder, PreviewProgram &program)
{
    QEventLoop loop;
    QTimer calm;
    calm.setSingleShot(true);
    calm.setInterval(calmAfterChange);
    QFileSystemWatcher watcher({call.argument(0)});
    QObject::connect(&watcher, &QFileSystemWatcher::fileChanged, &calm, qOverload<>(&QTimer::start));
    QObject::connect(&calm, &QTimer::timeout, &loop, [&call, &folder, &watcher] {
        watcher.addPath(call.argument(0)); // which a file that was moved there is not under watch any more
        ProjectBuild::run(call, folder, ProjectBuild::WithProblems::Build);
    });
    QObject::connect(&program.process(), &QProcess::finished, &loop, &QEventLoop::quit);
    loop.exec();
}

ExitCode run(const Call &call)
{
    const Common::TemporaryFolder temporary(u"corvex-preview"_s);
    const bool isBuild = QFileInfo(call.argument(0)).isDir();
    const QString folder = isBuild ? call.argument(0) : temporary.filePath(u"build"_s);
    if (!isBuild) {
        const ExitCode built = ProjectBuild::run(call, folder, ProjectBuild::WithProblems::Build);
        if (built != ExitCode::Done) {
            return built;
        }
    }
    // The key that ends the preview leaves time to clean up here.
    std::signal(SIGINT, [](int) {});
    PreviewProgram program(call, temporary.filePath(u"classes"_s));
    if (!program.start(programArguments(call, folder))) {
        return ExitCode::File;
    }
    if (isBuild || isUnattended(call)) {
        program.process().waitForFinished(-1);
    } else {
        follow(call, folder, program);
    }
    return program.finish();
}

QList<QCommandLineOption> options()
{
    return {
        QCommandLineOption(u"shot"_s, u"Take a picture of every screen, or where the script says."_s,
                           u"DIR"_s),
        QCommandLineOption(u"script"_s, u"Run the panel without a window as the script says."_s, u"SCRIPT"_s),
        QCommandLineOption(u"state"_s, u"Where persistent variables are kept between runs."_s, u"PATH"_s),
        QCommandLineOption(u"trust"_s, u"Run the folder of a build where nothing confines its scripts."_s),
    };
}

} // namespace

const Verb previewVerb{
    .name = "preview",
    .arguments = "FILE",
    .summary = "run the project on the desktop",
    .details =
        [] {
            return uR"(Builds the project and runs the build as the device would, in a window: the panel, its
variables, its inputs and outputs, and what goes wrong. When the project is saved, the window
follows. FILE may be the folder of a build, too.

With --shot, or --script, no window is needed. --shot DIR writes DIR/Main.png and so on, one
picture for each screen. A script has one command a line:

    show Settings               show a screen
    press Settings.remote       touch an element and let go
    hold NAME, release          the two halves of it
    set wellLevel 40            a variable, or a property: Overview.levelInput.value
    wait 5000                   let milliseconds pass, at once
    expect Main.label1.text "40"
    expect screen Settings
    shot NAME                   write NAME.png into the folder of --shot

The exit code is 1 when an expectation fails, which is told with what was there, and when
anything goes wrong on the screens. With --state, persistent variables and saved settings are
read from PATH and written back; the window keeps them by itself. A file that holds anything else
is left as it is.

The scripts of a build reach the files of the build alone, no network and no program; memory and
processor time are bounded. Where the system cannot do that (Linux does, with Landlock), the
folder of a build needs --trust; a project does not.)"_s;
        },
    .example = "corvex preview examples/PumpStation/PumpStation.kdproj --shot out/pictures",
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
