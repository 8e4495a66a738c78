// SPDX-License-Identifier: MIT
#include "terminal/ProblemReport.h"

#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

static void writeProblem(const QString &file, const Problem &problem, JsonWriter &json)
{
    json.beginObject();
    json.member("file"_L1, file);
    json.member("object"_L1, problem.object);
    json.member("property"_L1, problem.property);
    json.member("severity"_L1, QString(problem.kind().severityWord()));
    json.member("code"_L1, QString::fromUtf8(problem.kind().word));
    json.member("message"_L1, problem.message);
    if (problem.line > 0) {
        json.member("line"_L1, problem.line);
        json.member("column"_L1, problem.column);
    }
    json.endObject();
}

QString ProblemReport::line(const Problem &problem)
{
    return Terminal::oneLine(problem.toString());
}

void ProblemReport::printJson(const QList<ProblemsOfFile> &all, Terminal &terminal)
{
    JsonWriter &json = terminal.json();
    json.beginObject();
    json.name("problems"_L1);
    json.beginArray();
    for (const auto &[file, problems] : all) {
        for (const Problem &problem : problems) {
            writeProblem(file, problem, json);
        }
    }
    json.endArray();
    json.endObject();
}

} // namespace Halvane::Corvex::Tool
