// SPDX-License-Identifier: MIT
#include "ProjectBuild.h"

#include "corvex/checks/ProjectProblems.h"
#include "corvex/document/DeviceFolder.h"
#include "corvex/project/Project.h"
#include "corvex/runtime/RuntimeGenerator.h"

#include "Installation.h"
#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/ProblemReport.h"
#include "terminal/Terminal.h"

#include <QDir>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! Prints all problems. Returns whether the build may continue despite them.
bool isAccepted(const QList<Problem> &found, const ProjectFile &file, const Call &call,
                ProjectBuild::WithProblems withProblems)
{
    const ProblemsOfFile report = ProblemReport::make(file, found, call.asJson());
    const QList<Problem> &problems = report.problems;
    const bool isRefused = hasErrors(problems) && withProblems == ProjectBuild::WithProblems::Refuse;
    if (isRefused && call.asJson()) {
        ProblemReport::printJson({report}, call.terminal());
    } else {
        for (const Problem &problem : problems) {
            if (ProblemReport::isOpen(problem)) {
                call.terminal().printError(ProblemReport::line(problem));
            }
        }
    }
    if (!isRefused) {
        return true;
    }
    const bool isApproved = std::ranges::any_of(problems, [](const Problem &problem) {
        return problem.isApproved && problem.severity() == Severity::Error;
    });
    call.failed(
        u"\"%1\" has problems (%2) and was not built. Fix them, or build anyway with "
        "--force.%3"_s.arg(file.path(), QString::number(problems.size()),
                           isApproved ? u" Errors prevent a build even if they are approved."_s : QString()));
    return false;
}

} // namespace

ExitCode ProjectBuild::run(const Call &call, const QString &folder, WithProblems withProblems)
{
    ProjectFile file;
    const ConfigurationContainer *models =
        file.open(call, ProjectFile::Use::Read) ? Installation::loadModels(call) : nullptr;
    if (!models) {
        return ExitCode::File;
    }
    DeviceFolder target(folder);
    if (target.isInside(file.project().folderPath())) {
        return call.failed(u"\"%1\" is inside the project's own folder, which a build must not change. "
                           "Choose a folder outside of it."_s.arg(folder));
    }
    RuntimeGenerator &generator = file.project().runtimeGenerator();
    const auto cleanUp = qScopeGuard([&generator] { generator.removeBuildFolder(); });
    const QList<Problem> problems = ProjectProblems::find(
        file.project(), *models, call.terminal().showProgress(u"Checking %1"_s.arg(file.path())));
    if (!isAccepted(problems, file, call, withProblems)) {
        return ExitCode::Problems;
    }
    // Other files next to the images are the user's own and do not go to the device.
    generator.setResourceNames(file.project().imageResources()->listItemNames());
    generator.setProgress(call.terminal().showProgress(u"Building %1"_s.arg(file.path())));
    file.project().generateRuntimeFiles();
    call.terminal().endProgress();
    if (generator.buildFolder().isEmpty()) {
        return call.failed(generator.errorString(),
                           hasErrors(problems) ? ExitCode::Problems : ExitCode::File);
    }
    QString error;
    if (!target.bring(QDir(generator.buildFolder()).filePath(u"project"_s), &error)) {
        return call.failed(error);
    }
    return ExitCode::Done;
}

} // namespace Halvane::Corvex::Tool
