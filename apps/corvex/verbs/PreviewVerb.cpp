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

// Editors save a file in several steps.
constexpr int calmAfterChange = 300;

bool isUnattended(const Call &call)
{
    return call.isSet(u"shot"_s) || call.isSet(u"script"_s);
}

//! The default file for the saved state of a project or a build; it does not depend on the temporary build
//! folder.
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
    // The build of a project was just generated; the folder of a build may contain scripts from anybody.
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

//! Rebuilds the project whenever its file changes, until the window is closed.
void follow(const Call &call, const QString &folder, PreviewProgram &program)
{
    QEventLoop loop;
    QTimer calm;
    calm.setSingleShot(true);
    calm.setInterval(calmAfterChange);
    QFileSystemWatcher watcher({call.argument(0)});
    QObject::connect(&watcher, &QFileSystemWatcher::fileChanged, &calm, qOverload<>(&QTimer::start));
    QObject::connect(&calm, &QTimer::timeout, &loop, [&call, &folder, &watcher] {
        watcher.addPath(call.argument(0)); // a file that was replaced is no longer watched
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
    // The same Ctrl+C also ends the preview; stay alive to clean up.
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
        QCommandLineOption(u"shot"_s, u"Save a picture of every screen, or where the script says so."_s,
                           u"DIR"_s),
        QCommandLineOption(u"script"_s, u"Run the panel without a window, driven by a script."_s,
                           u"SCRIPT"_s),
        QCommandLineOption(u"state"_s, u"Where persistent variables are kept between runs."_s, u"PATH"_s),
        QCommandLineOption(u"trust"_s,
                           u"Run the folder of a build even if its scripts cannot be confined."_s),
    };
}

} // namespace

const Verb previewVerb{
    .name = "preview",
    .arguments = "FILE",
    .summary = "run the project on the desktop",
    .details =
        [] {
            return uR"(Builds the project and runs it in a window as the device would: the panel, its variables, its
inputs and outputs, and a list of run-time errors. When the project is saved, the window updates.
FILE may also be the folder of a build.

--shot and --script need no window. --shot DIR writes one picture for each screen, DIR/Main.png
and so on. A script has one command per line:

    show Settings               show a screen
    press Settings.remote       touch an element and release it
    hold NAME, release          touch an element; release it later
    set wellLevel 40            a variable, or a property, such as the value of an input of the
                                device: Overview.levelInput.value
    wait 5000                   advance the clock by milliseconds, without a delay
    expect Main.label1.text "40"
    expect screen Settings
    shot NAME                   write NAME.png into the folder of --shot

A failed expectation prints the actual value. The exit code is 1 if an expectation fails or an error
occurs on the screens. --state reads persistent variables and saved settings from PATH and writes them
back; the window keeps them by default. A file with any other content is not changed.

The scripts of a build can read only the files of the build. They have no network, cannot start
programs, and their memory and processor time are limited. On systems that cannot enforce this
(Linux can, with Landlock), the folder of a build needs --trust; a project does not.)"_s;
        },
    .example = "corvex preview examples/PumpStation/PumpStation.kdproj --shot out/pictures",
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
