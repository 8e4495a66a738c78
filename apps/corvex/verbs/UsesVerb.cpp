// SPDX-License-Identifier: MIT
#include "corvex/editing/references/KeptMentions.h"
#include "corvex/editing/references/ReferenceIndex.h"
#include "corvex/editing/references/ReferenceScanner.h"
#include "corvex/editing/references/ReferenceTarget.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include "ProjectFile.h"
#include "terminal/Advice.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

//! A place that names an object.
struct Use
{
    QString property; //!< its path
    QString text;     //!< the name as written there, including the way to it: "Main.group1.pump1"
    //! Null for an element whose plug-in is missing.
    SharedProperty source = {};
};

//! \a name is the name of the target.
QList<Use> usesOf(const ReferenceTarget &target, const QString &name)
{
    QList<Use> uses;
    QSet<QPair<QString, QString>> known;
    for (const ReferenceUse &use : ReferenceScanner::uses(target)) {
        const QString path = u"%1.%2"_s.arg(use.property->parentObject()->objectPath(), use.property->id());
        const qsizetype before = known.size();
        known.insert({path, use.path});
        if (known.size() > before) {
            uses.append({path, use.path, use.property});
        }
    }
    if (target.isValid()) {
        for (const QString &path : KeptMentions(*target.project()).of(name, target.screen())) {
            uses.append({path, name});
        }
    }
    return uses;
}

bool hasElement(const Project &project, const QString &name)
{
    const QList<DesignerObject *> screens = project.screens()->listItems();
    return std::ranges::any_of(screens, [&name](const DesignerObject *screen) {
        return static_cast<const Screen *>(screen)->hasElement(name);
    });
}

bool isUsed(const DesignerObject &object, const ReferenceIndex &index)
{
    const ReferenceTarget target(&object);
    return std::ranges::any_of(index.candidates(target), [&](const SharedProperty &property) {
        const QList<Mention> mentions = ReferenceForm::mentions(*property);
        return std::ranges::any_of(mentions, [&](const Mention &mention) {
            return target.isMeantBy(mention, property->parentObject());
        });
    });
}

//! The paths of all unused screens, variables and images.
QStringList unusedIn(Project &project)
{
    const ReferenceIndex &index = ReferenceIndex::of(&project);
    const KeptMentions kept(project);
    QStringList paths;
    for (const SharedProperty &list : {project.screens(), project.variables(), project.imageResources()}) {
        for (const DesignerObject *object : list->listItems()) {
            if (!isUsed(*object, index) && kept.of(object->getIdName()).isEmpty()) {
                paths.append(object->objectPath());
            }
        }
    }
    return paths;
}

QString lineOf(const Use &use, const Call &call)
{
    const QString form = u"%1: %2"_s;
    if (use.source && call.isSet(u"raw"_s)) {
        return Terminal::oneLine(form.arg(use.property, use.source->valueString()));
    }
    return use.source && call.isSet(u"values"_s)
               ? Terminal::readableLine(form.arg(use.property, ReadableValue::print(*use.source)))
               : Terminal::oneLine(form.arg(use.property, use.text));
}

ExitCode printUses(const QList<Use> &uses, const Call &call)
{
    if (!call.asJson()) {
        QString previous;
        for (const Use &use : uses) {
            const QString line = lineOf(use, call);
            if (line != std::exchange(previous, line)) { // a value may contain several names of the object
                call.terminal().print(line);
            }
        }
        return ExitCode::Done;
    }
    JsonWriter &json = call.json();
    json.beginObject();
    json.name("uses"_L1);
    json.beginArray();
    for (const Use &use : uses) {
        json.beginObject();
        json.member("property"_L1, use.property);
        json.member("text"_L1, use.text);
        if (use.source) {
            json.member("value"_L1, use.source->valueString());
            json.member("readable"_L1, ReadableValue::print(*use.source));
        }
        json.endObject();
    }
    json.endArray();
    json.endObject();
    return ExitCode::Done;
}

ExitCode printUnused(const QStringList &paths, const Call &call)
{
    if (!call.asJson()) {
        for (const QString &path : paths) {
            call.terminal().print(Terminal::oneLine(path));
        }
        return ExitCode::Done;
    }
    JsonWriter &json = call.json();
    json.beginObject();
    json.member("unused"_L1, paths);
    json.endObject();
    return ExitCode::Done;
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    const QString name = call.argument(1);
    if (name.isEmpty()) {
        return printUnused(unusedIn(file.project()), call);
    }
    if (const DesignerObject *object = ProjectPath::find(file.project(), name).object) {
        return printUses(usesOf(ReferenceTarget(object), object->getIdName()), call);
    }
    // Search by the bare name, which may belong to elements or to something that no longer exists.
    const QList<Use> uses = usesOf(ReferenceTarget(&file.project(), name), name);
    if (uses.isEmpty() && !hasElement(file.project(), name)) {
        return Advice::notFound(file.project(), name, call);
    }
    return printUses(uses, call);
}

} // namespace

const Verb usesVerb{
    .name = "uses",
    .arguments = "FILE [NAME]",
    .summary = "show where something is used, or what is not used at all",
    .details =
        [] {
            return uR"(Prints where the object NAME, or an element in it, is used: in links, expressions, states of
buttons and address maps. Each line shows the property, as a path that "corvex tree" accepts, and
the name as written there; --values prints the whole value, and --raw its stored text. For an element whose plug-in is missing it prints the path. NAME is a
path, or the name of elements on any screen. Without NAME, prints the screens, variables and
images that are not used.)"_s;
        },
    .example = "corvex uses examples/PumpStation/PumpStation.kdproj wellLevel",
    .mostArguments = 2,
    .opensProjects = true,
    .options =
        [] {
            return QList<QCommandLineOption>{
                QCommandLineOption(u"values"_s, u"Print the values that contain the name."_s), rawOption()};
        },
    .run = onProject<run>,
};

} // namespace Halvane::Corvex::Tool
