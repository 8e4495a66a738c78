// SPDX-License-Identifier: MIT
#include "corvex/editing/words/ProjectDiff.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/project/Project.h"

#include "ProjectFile.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

using Designer::Project;
using Designer::ProjectDiff;
using Designer::ReadableValue;
using Difference = ProjectDiff::Difference;

//! Values in the form that people write, unless these look alike.
Difference readable(Difference difference)
{
    const QString before = ReadableValue::print(*difference.oldProperty);
    const QString after = ReadableValue::print(*difference.newProperty);
    if (before != after) {
        difference.before = before;
        difference.after = after;
    }
    return difference;
}

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
    JsonWriter &json = call.json();
    json.beginObject();
    json.name("differences"_L1);
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
    json.endObject();
}

void print(const QList<Difference> &differences, const Call &call)
{
    if (call.asJson()) {
        printJson(differences, call);
        return;
    }
    for (const Difference &difference : differences) {
        const bool isReadable = difference.oldProperty && !call.isSet(u"raw"_s);
        call.terminal().print(isReadable ? Terminal::readableLine(lineOf(readable(difference)))
                                         : Terminal::oneLine(lineOf(difference)));
    }
}

//! Version control passes /dev/null for a project that was added or deleted.
bool isNothing(const Call &call, qsizetype argument)
{
    return call.argument(argument) == "/dev/null"_L1;
}

//! Prints the differences between two projects of the call.
ExitCode compare(const Call &call, qsizetype oldArgument, qsizetype newArgument, bool &differs)
{
    ProjectFile before;
    ProjectFile after;
    using Use = ProjectFile::Use;
    const bool hasBefore = !isNothing(call, oldArgument);
    const bool hasAfter = !isNothing(call, newArgument);
    if ((hasBefore && !before.open(call, Use::Read, oldArgument))
        || (hasAfter && !after.open(call, Use::Read, newArgument))) {
        return ExitCode::File;
    }
    QList<Difference> differences;
    if (hasBefore && hasAfter) {
        differences = ProjectDiff(before.project(), after.project()).differences();
    } else if (hasBefore || hasAfter) {
        const Project &only = hasBefore ? before.project() : after.project();
        differences.append({hasBefore ? ProjectDiff::Removed : ProjectDiff::Added,
                            only.getIdName(),
                            only.className(),
                            {},
                            {}});
    }
    differs = !differences.isEmpty();
    print(differences, call);
    return ExitCode::Done;
}

//! The arguments that git passes: PATH OLD-FILE OLD-HEX OLD-MODE NEW-FILE NEW-HEX NEW-MODE, or only PATH for
//! an unmerged file. git stops at any exit code except 0.
ExitCode compareForGit(const Call &call)
{
    constexpr qsizetype oldFile = 1;
    constexpr qsizetype newFile = 4;
    const qsizetype count = call.arguments().size();
    if (count == 1) {
        call.terminal().print(Terminal::oneLine(u"%1: not merged"_s.arg(call.argument(0))));
        return ExitCode::Done;
    }
    if (count <= newFile) {
        return call.misused(u"--git needs the arguments that git passes to a diff command."_s);
    }
    bool differs = false;
    call.terminal().print(Terminal::oneLine(u"%1:"_s.arg(call.argument(0))));
    return compare(call, oldFile, newFile, differs);
}

ExitCode run(const Call &call)
{
    if (call.isSet(u"git"_s)) {
        return compareForGit(call);
    }
    if (call.arguments().size() != 2) {
        return call.misused(u"Name two projects: corvex diff A B."_s);
    }
    bool differs = false;
    const ExitCode code = compare(call, 0, 1, differs);
    return code == ExitCode::Done && differs ? ExitCode::Problems : code;
}

QList<QCommandLineOption> options()
{
    return {QCommandLineOption(u"git"_s, u"Accept the arguments that git passes, and exit with 0 for any two "
                                         "projects that can be read."_s),
            rawOption()};
}

} // namespace

const Verb diffVerb{
    .name = "diff",
    .arguments = "A B",
    .summary = "show what changed between two projects",
    .details =
        [] {
            return uR"(Compares two projects object by object; objects with the same name in the same list are the
same object. Prints one line for everything that was added, removed, renamed or moved, and for
every changed value. Values are in the form that people write; --raw prints the stored texts, and
so does JSON. There each has "kind", "class", "path" and, where both sides exist,
"old" and "new". If both files exist, an image with the same name and other contents counts as
changed. The exit code is 0 if the projects are equal and 1 if they differ.

To make git show differences in this way, run
    git config diff.corvex.command "corvex diff --git"
    echo "*.kdproj diff=corvex" >>.gitattributes)"_s;
        },
    .example = "corvex diff examples/PumpStation/PumpStation.kdproj examples/PumpStation/PumpStation.kdproj",
    .mostArguments = 9,
    .opensProjects = true,
    .options = options,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
