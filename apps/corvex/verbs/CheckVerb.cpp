// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemApprovals.h"
#include "corvex/checks/ProjectProblems.h"
#include "corvex/project/Project.h"
#include "corvex/runtime/RuntimeGenerator.h"

#include "Installation.h"
#include "PreviewProgram.h"
#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/ProblemReport.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! Builds the project, runs its screens and adds the problems found there. Usually \a problems already
//! explain a failed build.
ExitCode checkScreens(const Call &call, const ProjectFile &file, QList<Problem> &problems)
{
    if (file.project().screens()->listItems().isEmpty()) {
        return ExitCode::Done;
    }
    RuntimeGenerator &generator = file.project().runtimeGenerator();
    const auto cleanUp = qScopeGuard([&generator] { generator.removeBuildFolder(); });
    generator.setProgress(call.terminal().showProgress(u"Building %1"_s.arg(file.path())));
    file.project().generateRuntimeFiles();
    call.terminal().endProgress();
    if (generator.buildFolder().isEmpty()) {
        return call.failed(generator.errorString(),
                           hasErrors(problems) ? ExitCode::Problems : ExitCode::File);
    }
    PreviewProgram program(call, generator.buildFolder() + u"/classes"_s);
    call.terminal().showProgress(u"Inspecting the screens of %1"_s.arg(file.path()));
    program.process().setProcessChannelMode(call.asJson() ? QProcess::SeparateChannels
                                                          : QProcess::ForwardedErrorChannel);
    if (!program.start({generator.buildFolder(), u"--audit"_s, u"--trust"_s})
        || !program.process().waitForFinished(-1)) {
        return ExitCode::File;
    }
    const QJsonArray entries = QJsonDocument::fromJson(program.process().readAllStandardOutput()).array();
    for (const auto &entry : entries) {
        problems.append(
            {ProblemCode::ScreenLook, entry[u"object"].toString(), QString(), entry[u"message"].toString()});
    }
    const ExitCode code = program.finish();
    return code == ExitCode::Problems ? ExitCode::Done : code;
}

ExitCode check(const Call &call, qsizetype argument, QList<ProblemsOfFile> &all)
{
    ProjectFile file;
    const ConfigurationContainer *models =
        file.open(call, ProjectFile::Use::Read, argument) ? Installation::loadModels(call) : nullptr;
    if (!models) {
        return ExitCode::File;
    }
    QList<Problem> problems = ProjectProblems::find(
        file.project(), *models, call.terminal().showProgress(u"Checking %1"_s.arg(file.path())));
    const ExitCode code = call.isSet(u"screens"_s) ? checkScreens(call, file, problems) : ExitCode::Done;
    if (const QString error = file.approvals().errorString(); !error.isEmpty()) {
        return call.failed(error);
    }
    all.append(ProblemReport::make(file, problems, call.asJson()));
    return code == ExitCode::Done && hasErrors(problems) ? ExitCode::Problems : code;
}

void print(const ProblemsOfFile &one, const Call &call)
{
    const QString start = call.arguments().size() > 1 ? Terminal::oneLine(one.file) + u": "_s : QString();
    for (const Problem &problem : one.problems) {
        if (ProblemReport::isOpen(problem)) {
            call.terminal().print(start + ProblemReport::line(problem));
        }
    }
    if (const QString summary = ProblemReport::summary(one.problems); !summary.isEmpty()) {
        call.terminal().print(start + summary);
    }
}

ExitCode run(const Call &call)
{
    ExitCode worst = ExitCode::Done;
    QList<ProblemsOfFile> all;
    for (qsizetype i = 0; i < call.arguments().size(); ++i) {
        const qsizetype before = all.size();
        worst = std::max(worst, check(call, i, all));
        if (!call.asJson() && all.size() > before) {
            print(all.constLast(), call);
        }
    }
    if (call.asJson()) {
        ProblemReport::printJson(all, call.terminal());
    }
    return worst;
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"screens"_s, u"Also run the screens and inspect them."_s)};
}

} // namespace

const Verb checkVerb{
    .name = "check",
    .arguments = "FILE...",
    .summary = "print every problem of a project",
    .details =
        [] {
            return uR"(Loads the project, validates everything and prints one line for each problem: the path of the
object, the property, and what is wrong. Problems include unreadable parts of the file, with
line and column, names of objects that do not exist, and generated code that the device
cannot read. If there are no problems, nothing is printed. Errors give exit code 1.

Approved warnings and hints ("corvex approve") are only counted. Approved errors are still printed,
because they still stop a build.

--screens also runs the screens as the device would. It reports texts that do not fit, elements
that are outside of the screen or completely hidden by others, and all errors at run time. It
inspects the screens as they start, with the initial values of the variables; only rectangles
and images without transparent parts count as hiding others. To test anything else, write a
script for "corvex preview".)"_s;
        },
    .example = "corvex check examples/PumpStation/PumpStation.kdproj",
    .mostArguments = Verb::anyNumber,
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
