// SPDX-License-Identifier: MIT
#include "corvex/editing/words/ClassHelp.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/editing/words/ValueForm.h"

#include "Installation.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

using Designer::ClassHelp;
using Designer::PropertyHelp;
using Designer::RuntimeHelp;
using Designer::Suggestion;
using Designer::ValueForm;

void printJson(const QList<ClassHelp> &classes, const Call &call)
{
    JsonWriter &json = call.json();
    json.beginObject();
    json.name("classes"_L1);
    json.beginArray();
    for (const ClassHelp &help : classes) {
        json.beginObject();
        json.member("class"_L1, help.className);
        json.member("title"_L1, help.title);
        json.member("description"_L1, help.description);
        json.member("bases"_L1, help.bases);
        json.member("edit"_L1, help.line);
        json.name("properties"_L1);
        json.beginArray();
        for (const PropertyHelp &property : help.properties) {
            json.beginObject();
            json.member("id"_L1, property.id);
            json.member("title"_L1, property.title);
            json.member("kind"_L1, property.kind);
            json.member("takes"_L1, property.takes);
            json.member("default"_L1, property.initialValue);
            json.member("description"_L1, property.description);
            json.member("edit"_L1, property.line);
            json.member("definedBy"_L1, property.definedBy);
            json.endObject();
        }
        json.endArray();
        json.name("runtime"_L1);
        json.beginArray();
        for (const RuntimeHelp &property : help.runtime) {
            json.beginObject();
            json.member("id"_L1, property.id);
            json.member("type"_L1, property.type);
            json.member("description"_L1, property.description);
            json.member("readOnly"_L1, property.isReadOnly);
            json.endObject();
        }
        json.endArray();
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

//! All classes, each below the class that it derives from.
void printTree(const QList<ClassHelp> &classes, const QString &base, qsizetype depth, Terminal &terminal)
{
    constexpr qsizetype nameWidth = 28;
    constexpr qsizetype titleWidth = 24;
    for (const ClassHelp &help : classes) {
        if (help.bases.value(0) == base) {
            const QString name = QString(2 * depth, u' ') + help.className;
            terminal.print(name.leftJustified(nameWidth) + help.title.leftJustified(titleWidth)
                           + help.description);
            printTree(classes, help.className, depth + 1, terminal);
        }
    }
}

void printProperty(const PropertyHelp &property, Terminal &terminal)
{
    const QString initial =
        property.initialValue.isEmpty() ? QString() : u" (default %1)"_s.arg(property.initialValue);
    terminal.print(Terminal::oneLine(u"  %1: %2%3"_s.arg(property.id, property.takes, initial)));
    terminal.print(u"    "_s + property.description);
    if (!property.line.isEmpty()) {
        terminal.print(u"      "_s + property.line);
    }
}

void printClass(const ClassHelp &help, Terminal &terminal)
{
    terminal.print(help.title.isEmpty() || help.title == help.className
                       ? help.className
                       : u"%1 (%2)"_s.arg(help.className, help.title));
    terminal.print(help.description);
    if (!help.line.isEmpty()) {
        terminal.print(u"      "_s + help.line);
    }
    QString source;
    for (const PropertyHelp &property : help.properties) {
        if (property.definedBy != source) {
            source = property.definedBy;
            terminal.print({});
            terminal.print(source == help.className ? u"Properties:"_s : u"From %1:"_s.arg(source));
        }
        printProperty(property, terminal);
    }
    if (!help.runtime.isEmpty()) {
        terminal.print({});
        terminal.print(u"On the device, for expressions, rules and assignments:"_s);
    }
    for (const RuntimeHelp &property : help.runtime) {
        terminal.print(u"  %1: %2%3. %4"_s.arg(property.id, property.type,
                                               property.isReadOnly ? u", read only"_s : QString(),
                                               property.description));
    }
}

//! The property, and how values of its kind are written.
void printOne(const ClassHelp &help, Terminal &terminal)
{
    const PropertyHelp &property = help.properties.constFirst();
    terminal.print(u"%1.%2 (%3)"_s.arg(help.className, property.id, property.title));
    printProperty(property, terminal);
    const auto form = std::ranges::find(ValueForm::all(), property.kind, &ValueForm::name);
    if (form != ValueForm::all().end()) {
        terminal.print({});
        terminal.print(form->explanation().remove(u'`'));
    }
}

ExitCode listClasses(const Call &call)
{
    QList<ClassHelp> classes;
    for (const QString &name : ClassHelp::names()) {
        if (const std::optional<ClassHelp> help = ClassHelp::summaryOf(name)) {
            classes.append(*help);
        }
    }
    if (call.asJson()) {
        printJson(classes, call);
    } else {
        printTree(classes, {}, 0, call.terminal());
    }
    return ExitCode::Done;
}

ExitCode run(const Call &call)
{
    if (const ExitCode code = Installation::loadFactory(call); code != ExitCode::Done) {
        return code;
    }
    if (call.arguments().isEmpty()) {
        return listClasses(call);
    }
    const QString className = call.argument(0).section(u'.', 0, 0);
    const QString id = call.argument(0).section(u'.', 1);
    std::optional<ClassHelp> help = ClassHelp::of(className);
    if (!help) {
        return call.failed(Suggestion::unknown(u"class"_s, className, ClassHelp::names(),
                                               u"\"corvex classes\" lists them all."_s),
                           ExitCode::Usage);
    }
    if (!id.isEmpty()) {
        QStringList ids;
        for (const PropertyHelp &property : help->properties) {
            ids.append(property.id);
        }
        help->properties.removeIf([&id](const PropertyHelp &property) { return property.id != id; });
        if (help->properties.isEmpty()) {
            return call.failed(
                Suggestion::unknown(u"property"_s, id, ids,
                                    u"\"corvex classes %1\" shows those of the class."_s.arg(className)),
                ExitCode::Usage);
        }
    }
    if (call.asJson()) {
        printJson({*help}, call);
    } else if (id.isEmpty()) {
        printClass(*help, call.terminal());
    } else {
        printOne(*help, call.terminal());
    }
    return ExitCode::Done;
}

} // namespace

const Verb classesVerb{
    .name = "classes",
    .arguments = "[CLASS[.PROPERTY]]",
    .summary = "list the classes of objects, or explain one and its properties",
    .details =
        [] {
            return uR"(Lists all classes, each below the class that it derives from. With CLASS, also shows its
properties: what each takes, its default, what it is for, and a line of "corvex edit" that sets it.
Elements also have properties on the device, which expressions, rules and assignments use. With
CLASS.PROPERTY, shows this property and explains how its values are written. The lines belong
to a project "Plant" with a screen "Main"; docs/reference.md lists its other objects.)"_s;
        },
    .example = "corvex classes Rectangle.size",
    .fewestArguments = 0,
    .opensProjects = true,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
