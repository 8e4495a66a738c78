// SPDX-License-Identifier: MIT
#include "Call.h"
#include "Installation.h"
#include "ProjectFile.h"
#include "ProjectProblems.h"
#include "Terminal.h"
#include "Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

ExitCode run(const Call &call, const ProjectFile &file)
{
    const Designer::ConfigurationContainer *models = Installation::loadModels(call);
    if (!models) {
        return ExitCode::File;
    }
    call.terminal().showProgress(u"checking %1"_s.arg(file.path()));
    const QList<Problem> problems = ProjectProblems::find(file, *models);
    if (call.asJson()) {
        ProjectProblems::printJson(problems, call.terminal());
    } else {
        for (const Problem &problem : problems) {
            call.terminal().print(problem.toString());
        }
    }
    return problems.isEmpty() ? ExitCode::Done : ExitCode::Problems;
}

} // namespace

const Verb checkVerb{
    .name = "check",
    .arguments = "FILE",
    .summary = "print every problem of a project",
    .details =
        [] {
            return uR"(Loads the project, validates everything and prints one line for each problem: the path of the
object, the property, and what is wrong. Among them are parts of the file that could not be
read, with line and column, and generated code that the device could not read. Without
problems nothing is printed; with any the exit code is 1.)"_s;
        },
    .example = "corvex check examples/PumpStation/PumpStation.kdproj",
    .opensProjects = true,
    .run = onProject<run>,
};

} // namespace Halvane::Corvex::Tool
