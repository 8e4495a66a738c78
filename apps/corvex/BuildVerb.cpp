// SPDX-License-Identifier: MIT
#include "corvex/project/Project.h"
#include "corvex/runtime/RuntimeGenerator.h"

#include "Call.h"
#include "CodeCheck.h"
#include "DeviceFolder.h"
#include "Installation.h"
#include "JsonWriter.h"
#include "ProjectFile.h"
#include "ProjectProblems.h"
#include "Terminal.h"
#include "Verb.h"

#include <QDir>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! Names all problems. Whether the build goes on in spite of them is up to --force.
bool isAccepted(const QList<Problem> &problems, const ProjectFile &file, const Call &call)
{
    for (const Problem &problem : problems) {
        call.terminal().printError(problem.toString());
    }
    if (problems.isEmpty() || call.isSet(u"force"_s)) {
        return true;
    }
    if (call.asJson()) {
        ProjectProblems::printJson(problems, call.terminal());
    }
    call.failed(u"\"%1\" has problems (%2) and is not built. Mend them, or build it all the same with "
                "--force."_s.arg(file.path(), QString::number(problems.size())));
    return false;
}

//! Makes the build and tells, of the code that it holds too, what is wrong with the project.
QList<Problem> build(const ProjectFile &file, const ConfigurationContainer &models)
{
    CodeCheck code;
    RuntimeGenerator &generator = file.project().runtimeGenerator();
    generator.setScreenObserver(
        [&code](const DesignerObject &screen, const QString &qml) { code.add(screen, qml); });
    file.project().generateRuntimeFiles();
    generator.setScreenObserver({});
    const bool hasAllScreens = !generator.buildFolder().isEmpty();
    return hasAllScreens ? ProjectProblems::find(file, models, code) : ProjectProblems::find(file, models);
}

void report(const QString &folder, const Call &call)
{
    const QStringList files = QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    if (!call.asJson()) {
        call.terminal().print(
            Terminal::oneLine(u"%1: %2 files"_s.arg(folder, QString::number(files.size()))));
        return;
    }
    JsonWriter json(call.terminal());
    json.beginObject();
    json.member("folder"_L1, folder);
    json.member("files"_L1, files);
    json.endObject();
}

ExitCode buildAndBring(const Call &call, const ProjectFile &file)
{
    const ConfigurationContainer *models = Installation::loadModels(call);
    if (!models) {
        return ExitCode::File;
    }
    call.terminal().showProgress(u"building %1"_s.arg(file.path()));
    RuntimeGenerator &generator = file.project().runtimeGenerator();
    const auto cleanUp = qScopeGuard([&generator] { generator.removeBuildFolder(); });
    const QList<Problem> problems = build(file, *models);
    if (!isAccepted(problems, file, call)) {
        return ExitCode::Problems;
    }
    if (generator.buildFolder().isEmpty()) {
        return call.failed(generator.errorString(), problems.isEmpty() ? ExitCode::File : ExitCode::Problems);
    }
    DeviceFolder folder(call.value(u"output"_s));
    QString error;
    if (!folder.bring(QDir(generator.buildFolder()).filePath(u"project"_s), &error)) {
        return call.failed(error);
    }
    report(folder.projectPath(), call);
    return ExitCode::Done;
}

ExitCode run(const Call &call)
{
    if (call.value(u"output"_s).isEmpty()) {
        return call.misused(u"The folder for the build is missing: corvex build FILE -o DIR."_s);
    }
    return onProject<buildAndBring>(call);
}

QList<QCommandLineOption> options()
{
    return {
        QCommandLineOption({u"o"_s, u"output"_s}, u"The folder that the build is brought to."_s, u"DIR"_s),
        QCommandLineOption(u"force"_s, u"Build a project with problems."_s)};
}

} // namespace

const Verb buildVerb{
    .name = "build",
    .arguments = "FILE -o DIR",
    .summary = "make the folder that goes to the device",
    .details =
        [] {
            return uR"(Builds the project and brings the result to DIR, which then holds the folder "project" with
one QML file for each screen, the images, the zipped project and what the device reads
about variables and fieldbuses (config.kdrc, canConfig.kdrc, bacConfig.kdrc; "corvex
config-dump" shows them). DIR is made when it is missing. Nothing of yours is replaced: DIR
must be new, empty, or hold an earlier build and nothing else. A project with problems is not
built without --force, and a build that fails leaves DIR as it was.)"_s;
        },
    .example = "corvex build examples/PumpStation/PumpStation.kdproj -o out/PumpStation",
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
