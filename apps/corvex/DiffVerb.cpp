// SPDX-License-Identifier: MIT
#include "corvex/project/Project.h"

#include "Call.h"
#include "JsonWriter.h"
#include "ProjectDiff.h"
#include "ProjectFile.h"
#include "Terminal.h"
#include "Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

using Difference = ProjectDiff::Difference;

QString lineOf(const Difference &difference)
{
    switch (difference.kind) {
    case ProjectDiff::Added:
    case ProjectDiff::Removed:
        return u"%1 %2 %3"_s.arg(ProjectDiff::nameOf(difference.kind), difference.className, difference.path);
    default:
        return u"%1 %2: %3 -> %4"_s.arg(ProjectDiff::nameOf(difference.kind), difference.path,
                                        difference.before, difference.after);
    }
}

void printJson(const QList<Difference> &differences, const Call &call)
{
    JsonWriter json(call.terminal());
    json.beginArray();
    for (const Difference &difference : differences) {
        json.beginObject();
        json.member("kind"_L1, ProjectDiff::nameOf(difference.kind));
        json.member("class"_L1, difference.className);
        json.member("path"_L1, difference.path);
        if (difference.kind != ProjectDiff::Added && difference.kind != ProjectDiff::Removed) {
            json.member("old"_L1, difference.before);
            json.member("new"_L1, difference.after);
        }
        json.endObject();
    }
    json.endArray();
}

ExitCode run(const Call &call)
{
    ProjectFile before;
    ProjectFile after;
    using Use = ProjectFile::Use;
    if (!before.open(call, Use::Read) || !after.open(call, Use::Read, 1)) {
        return ExitCode::File;
    }
    const ProjectDiff diff(before.project(), after.project());
    if (call.asJson()) {
        printJson(diff.differences(), call);
    } else {
        for (const Difference &difference : diff.differences()) {
            call.terminal().print(Terminal::oneLine(lineOf(difference)));
        }
    }
    return diff.differences().isEmpty() ? ExitCode::Done : ExitCode::Problems;
}

} // namespace

const Verb diffVerb{
    .name = "diff",
    .arguments = "A B",
    .summary = "tell what became of one project in another",
    .details =
        [] {
            return uR"(Compares two projects object by object: what is in one list under one name is the same object.
Prints what was added, removed, renamed or moved and every value that changed, a line each; in
JSON each has "kind", "class", "path" and, where there are two sides, "old" and "new". The exit code
is 0 when the projects are equal and 1 when they are not.)"_s;
        },
    .example = "corvex diff examples/PumpStation/PumpStation.kdproj examples/PumpStation/PumpStation.kdproj",
    .fewestArguments = 2,
    .mostArguments = 2,
    .opensProjects = true,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
