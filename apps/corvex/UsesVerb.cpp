// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/ReferenceIndex.h"
#include "corvex/editing/commands/ReferenceScanner.h"
#include "corvex/editing/commands/ReferenceTarget.h"
#include "corvex/project/Project.h"

#include "Call.h"
#include "JsonWriter.h"
#include "ProjectFile.h"
#include "ProjectPath.h"
#include "Terminal.h"
#include "Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! The paths of the properties that name the object or something in it, each once.
QStringList usesOf(const DesignerObject &object)
{
    QStringList paths;
    for (const ReferenceUse &use : ReferenceScanner::uses(ReferenceTarget(&object))) {
        const QString path = u"%1.%2"_s.arg(use.property->parentObject()->objectPath(), use.property->id());
        if (paths.isEmpty() || paths.constLast() != path) {
            paths.append(path);
        }
    }
    return paths;
}

bool isUsed(const DesignerObject &object, const ReferenceIndex &index)
{
    const ReferenceTarget target(&object);
    return std::ranges::any_of(index.candidates(target), [&](const SharedProperty &property) {
        const QList<Mention> mentions =
            ReferenceForm::mentions(ReferenceForm::of(*property), property->valueString());
        return std::ranges::any_of(mentions, [&](const Mention &mention) {
            return target.isMeantBy(mention, property->parentObject());
        });
    });
}

//! The paths of all screens, variables and images that nothing names.
QStringList unusedIn(Project &project)
{
    const ReferenceIndex &index = ReferenceIndex::of(&project);
    QStringList paths;
    for (const SharedProperty &list : {project.screens(), project.variables(), project.imageResources()}) {
        for (const DesignerObject *object : list->listItems()) {
            if (!isUsed(*object, index)) {
                paths.append(object->objectPath());
            }
        }
    }
    return paths;
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    const QString path = call.argument(1);
    const DesignerObject *object = nullptr;
    if (!path.isEmpty()) {
        object = ProjectPath::find(&file.project(), path).object;
        if (!object) {
            return ProjectPath::notFound(path, call);
        }
    }
    const QStringList paths = object ? usesOf(*object) : unusedIn(file.project());
    if (call.asJson()) {
        JsonWriter json(call.terminal());
        json.beginObject();
        json.member(object ? "uses"_L1 : "unused"_L1, paths);
        json.endObject();
        return ExitCode::Done;
    }
    for (const QString &line : paths) {
        call.terminal().print(Terminal::oneLine(line));
    }
    return ExitCode::Done;
}

} // namespace

const Verb usesVerb{
    .name = "uses",
    .arguments = "FILE [PATH]",
    .summary = "tell where something is used, or what is not used at all",
    .details =
        [] {
            return uR"(Prints the properties that name the object PATH or an element in it: links, expressions, states
of buttons, address maps. A line each, as a path that "corvex tree" takes. Without PATH it prints
the screens, variables and images that nothing names.)"_s;
        },
    .example = "corvex uses examples/PumpStation/PumpStation.kdproj wellLevel",
    .mostArguments = 2,
    .opensProjects = true,
    .run = onProject<run>,
};

} // namespace Halvane::Corvex::Tool
