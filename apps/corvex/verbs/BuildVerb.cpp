// SPDX-License-Identifier: MIT
#include "corvex/document/DeviceFolder.h"

#include "ProjectBuild.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

void report(const QString &folder, const Call &call)
{
    const QStringList files = QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    if (!call.asJson()) {
        call.terminal().print(
            Terminal::oneLine(u"%1: %2 files"_s.arg(folder, QString::number(files.size()))));
        return;
    }
    JsonWriter &json = call.json();
    json.beginObject();
    json.member("folder"_L1, folder);
    json.member("files"_L1, files);
    json.endObject();
}

ExitCode run(const Call &call)
{
    const QString folder = call.value(u"output"_s);
    if (folder.isEmpty()) {
        return call.misused(u"Name a folder for the build: corvex build FILE -o DIR."_s);
    }
    const ExitCode code = ProjectBuild::run(call, folder,
                                            call.isSet(u"force"_s) ? ProjectBuild::WithProblems::Build
                                                                   : ProjectBuild::WithProblems::Refuse);
    if (code == ExitCode::Done) {
        report(Designer::DeviceFolder(folder).projectPath(), call);
    }
    return code;
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption({u"o"_s, u"output"_s}, u"The folder for the build."_s, u"DIR"_s),
            QCommandLineOption(u"force"_s, u"Build despite problems."_s)};
}

} // namespace

const Verb buildVerb{
    .name = "build",
    .arguments = "FILE -o DIR",
    .summary = "build the folder that goes to the device",
    .details =
        [] {
            return uR"(Builds the project into DIR/project: one QML file for each screen, the images, the zipped
project, and the configuration files for variables and fieldbuses (config.kdrc,
canConfig.kdrc, bacConfig.kdrc; "corvex config-dump" shows them). Creates DIR if necessary.
A build never replaces your own files: DIR must be new, empty, or contain only an earlier
build. --force builds a project despite problems. A failed build leaves DIR unchanged.)"_s;
        },
    .example = "corvex build examples/PumpStation/PumpStation.kdproj -o out/PumpStation",
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
