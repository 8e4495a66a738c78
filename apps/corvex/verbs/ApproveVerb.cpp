// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemApprovals.h"
#include "corvex/checks/ProjectProblems.h"
#include "corvex/project/Project.h"

#include "Installation.h"
#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/ProblemReport.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! The path in the form that users write, including the property.
QString pathOf(const Problem &problem)
{
    return problem.property.isEmpty() ? problem.path() : problem.path() + u'.' + problem.property;
}

QString codeOf(const Problem &problem)
{
    return QString::fromUtf8(problem.kind().word);
}

bool isCode(const QString &word)
{
    return std::ranges::any_of(ProblemKind::all(), [&word](const ProblemKind &kind) {
        return word == QLatin1StringView(kind.word);
    });
}

//! Reports that the project does not have the problem.
ExitCode noSuchProblem(const QList<Problem> &problems, const Call &call)
{
    const QString code = call.argument(1);
    const QString path = call.argument(2);
    QStringList others;
    for (const Problem &problem : problems) {
        if (pathOf(problem) == path || problem.path() == path || codeOf(problem) == code) {
            others.append(u"%1 %2"_s.arg(codeOf(problem), pathOf(problem)));
        }
    }
    others.removeDuplicates();
    constexpr qsizetype most = 5;
    const QString advice =
        others.isEmpty() ? u"\"corvex check --json\" prints the codes and the paths."_s
                         : u"It has: %1."_s.arg(others.first(std::min(most, others.size())).join(u", "_s));
    return call.failed(u"The project has no problem %1 at \"%2\". %3"_s.arg(code, path, advice),
                       ExitCode::Problems);
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    const QString code = call.argument(1);
    if (!isCode(code)) {
        return call.failed(
            u"There is no problem with the code \"%1\". docs/problems.md lists all codes."_s.arg(code),
            ExitCode::Problems);
    }
    ProblemApprovals &approvals = file.approvals();
    const ConfigurationContainer *models = Installation::loadModels(call);
    if (!approvals.errorString().isEmpty() || !models) {
        return models ? call.failed(approvals.errorString()) : ExitCode::File;
    }
    const QList<Problem> problems = ProjectProblems::find(
        file.project(), *models, call.terminal().showProgress(u"Checking %1"_s.arg(file.path())));
    call.terminal().endProgress();
    qsizetype count = 0;
    for (const Problem &problem : problems) {
        if (codeOf(problem) != code || pathOf(problem) != call.argument(2)) {
            continue;
        }
        ++count;
        if (call.isSet(u"withdraw"_s)) {
            approvals.withdraw(problem);
        } else {
            approvals.approve(problem, call.value(u"reason"_s));
        }
    }
    if (count == 0) {
        return noSuchProblem(problems, call);
    }
    return approvals.save() ? ExitCode::Done : call.failed(approvals.errorString());
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"reason"_s, u"Why the problem is intended, for readers of the file."_s,
                               u"TEXT"_s),
            QCommandLineOption(u"withdraw"_s, u"Withdraw the approval."_s)};
}

} // namespace

const Verb approveVerb{
    .name = "approve",
    .arguments = "FILE CODE PATH",
    .summary = "mark a problem of a project as known and intended",
    .details =
        [] {
            return uR"(Approves the problems with the code CODE ("log.unfed") at PATH, which is an object or a property of
an object ("Main.pump.opacity"). "corvex check --json" prints codes and paths. From then on, approved
warnings and hints are only counted. Approved errors are still printed and still prevent a build.

Approvals are in the file "Approvals.jsonl" in the folder of the project, one per line, so that
version control can merge them. An approval refers to one message: if a new value changes the
message, the problem is open again. Approvals follow renamed objects.)"_s;
        },
    .example = "corvex approve --help",
    .fewestArguments = 3,
    .mostArguments = 3,
    .opensProjects = true,
    .options = options,
    .run = onProject<run, ProjectFile::Use::Change>,
};

} // namespace Halvane::Corvex::Tool
