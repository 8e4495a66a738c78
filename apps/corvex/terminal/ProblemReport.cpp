// SPDX-License-Identifier: MIT
#include "terminal/ProblemReport.h"

#include "corvex/checks/ProblemApprovals.h"
#include "corvex/checks/ProblemFix.h"

#include "ProjectFile.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! A search for the nearest of many names is slow, and nobody reads more fixes.
constexpr qsizetype mostFixes = 200;

void writeProblem(const ProblemsOfFile &one, qsizetype index, JsonWriter &json)
{
    const Problem &problem = one.problems.at(index);
    json.beginObject();
    json.member("file"_L1, one.file);
    json.member("object"_L1, problem.object);
    json.member("property"_L1, problem.property);
    json.member("severity"_L1, QString(problem.kind().severityWord()));
    json.member("code"_L1, QString::fromUtf8(problem.kind().word));
    json.member("message"_L1, problem.message);
    if (problem.line > 0) {
        json.member("line"_L1, problem.line);
        json.member("column"_L1, problem.column);
    }
    if (problem.isApproved) {
        json.member("approved"_L1, true);
    }
    if (const QString reason = one.reasons.value(index); !reason.isEmpty()) {
        json.member("reason"_L1, reason);
    }
    if (const QStringList fixes = one.fixes.value(index); !fixes.isEmpty()) {
        json.member("fixes"_L1, fixes);
    }
    json.endObject();
}

} // namespace

ProblemsOfFile ProblemReport::make(const ProjectFile &file, const QList<Problem> &problems, bool withFixes)
{
    ProblemsOfFile one{file.path(), problems, {}, {}};
    file.approvals().mark(one.problems);
    for (const Problem &problem : std::as_const(one.problems)) {
        one.reasons.append(file.approvals().reasonFor(problem));
        if (withFixes && one.fixes.size() < mostFixes) {
            QStringList texts;
            for (const ProblemFix &fix : ProblemFix::of(problem)) {
                texts.append(fix.text);
            }
            one.fixes.append(texts);
        }
    }
    return one;
}

bool ProblemReport::isOpen(const Problem &problem)
{
    return !problem.isApproved || problem.severity() == Severity::Error;
}

QString ProblemReport::summary(const QList<Problem> &problems)
{
    const auto approved = std::ranges::count_if(problems, &Problem::isApproved);
    if (approved == 0) {
        return {};
    }
    const auto others = problems.size() - approved;
    return (others == 1 ? u"%1 problem, %2 approved"_s : u"%1 problems, %2 approved"_s)
        .arg(QString::number(others), QString::number(approved));
}

QString ProblemReport::line(const Problem &problem)
{
    const QString text = Terminal::oneLine(problem.toString());
    return problem.isApproved ? u"%1 (approved)"_s.arg(text) : text;
}

void ProblemReport::printJson(const QList<ProblemsOfFile> &all, Terminal &terminal)
{
    JsonWriter &json = terminal.json();
    json.beginObject();
    json.name("problems"_L1);
    json.beginArray();
    for (const ProblemsOfFile &one : all) {
        for (qsizetype i = 0; i < one.problems.size(); ++i) {
            writeProblem(one, i, json);
        }
    }
    json.endArray();
    json.endObject();
}

} // namespace Halvane::Corvex::Tool
