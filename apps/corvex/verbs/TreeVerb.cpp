// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/project/Project.h"

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

//! Passes an object and everything below it to a printer.
template<class Printer>
void walk(const DesignerObject &object, Printer &printer)
{
    printer.begin(object);
    for (const SharedProperty &property : object.properties()) {
        if (const ItemList *list = property->itemList()) {
            walkItems(*list, printer);
        } else if (const DesignerObject *child = property->objectValue()) {
            walk(*child, printer);
        }
    }
    printer.end();
}

template<class Printer>
void walkItems(const ItemList &list, Printer &printer)
{
    list.walk([&printer](const DesignerObject *item) { walk(*item, printer); },
              [&printer](const KeptItem &kept) { printer.addKept(kept); });
}

bool isShown(const DesignerProperty &property)
{
    return property.hasFlag(StoredFlag) && !property.isList() && !property.isObject();
}

QString textOf(const DesignerProperty &property, const Call &call)
{
    return call.isSet(u"raw"_s) ? property.valueString() : ReadableValue::print(property);
}

//! "Text label1": one line for each object, indented below its owner.
class TextPrinter
{
public:
    explicit TextPrinter(const Call &call)
        : m_call(call)
    { }

    //! The next object is printed with its values.
    void showValues() { m_showsValues = true; }

    void begin(const DesignerObject &object)
    {
        print(u"%1 %2"_s.arg(object.className(), object.getIdName()));
        ++m_depth;
        if (!std::exchange(m_showsValues, false)) {
            return;
        }
        for (const SharedProperty &property : object.properties()) {
            if (isShown(*property)) {
                const QString line = u"%1 = %2"_s.arg(property->id(), textOf(*property, m_call));
                printLine(m_call.isSet(u"raw"_s) ? Terminal::oneLine(line) : Terminal::readableLine(line));
            }
        }
    }
    void end() { --m_depth; }
    void addKept(const KeptItem &kept)
    {
        print(u"%1 %2 (kept unchanged from the file)"_s.arg(kept.className, kept.name));
    }

private:
    void print(const QString &text) { printLine(Terminal::oneLine(text)); }
    void printLine(const QString &line) { m_call.terminal().print(QString(2 * m_depth, u' ') + line); }

    const Call &m_call;
    qsizetype m_depth = 0;
    bool m_showsValues = false;
};

//! {"class": ..., "name": ..., "properties": {...}, "children": [...]}
class JsonPrinter
{
public:
    explicit JsonPrinter(JsonWriter &json)
        : m_json(json)
    { }

    void begin(const DesignerObject &object)
    {
        beginNode(object.className(), object.getIdName());
        for (const SharedProperty &property : object.properties()) {
            if (isShown(*property)) {
                m_json.name(property->id());
                m_json.value(property->valueString());
            }
        }
        beginChildren();
    }
    void end()
    {
        m_json.endArray();
        m_json.endObject();
    }
    void addKept(const KeptItem &kept)
    {
        beginNode(kept.className, kept.name);
        beginChildren();
        end();
    }

private:
    void beginNode(const QString &className, const QString &name)
    {
        m_json.beginObject();
        m_json.member("class"_L1, className);
        m_json.member("name"_L1, name);
        m_json.name("properties"_L1);
        m_json.beginObject();
    }
    void beginChildren()
    {
        m_json.endObject();
        m_json.name("children"_L1);
        m_json.beginArray();
    }

    JsonWriter &m_json;
};

void printObject(const DesignerObject &object, bool withValues, const Call &call)
{
    if (call.asJson()) {
        JsonWriter &json = call.json();
        JsonPrinter printer(json);
        walk(object, printer);
        return;
    }
    TextPrinter printer(call);
    if (withValues) {
        printer.showValues();
    }
    walk(object, printer);
}

void printList(const ItemList &list, const Call &call)
{
    if (call.asJson()) {
        JsonWriter &json = call.json();
        JsonPrinter printer(json);
        json.beginObject();
        json.name("children"_L1);
        json.beginArray();
        walkItems(list, printer);
        json.endArray();
        json.endObject();
        return;
    }
    TextPrinter printer(call);
    walkItems(list, printer);
}

void printValue(const DesignerProperty &property, const Call &call)
{
    if (!call.asJson()) {
        call.terminal().print(textOf(property, call));
        return;
    }
    JsonWriter &json = call.json();
    json.beginObject();
    json.member("object"_L1, property.parentObject()->objectPath());
    json.member("property"_L1, property.id());
    json.member("value"_L1, property.valueString());
    json.endObject();
}

ExitCode run(const Call &call, const ProjectFile &file)
{
    const QString path = call.argument(1);
    if (path.isEmpty()) {
        printObject(file.project(), false, call);
        return ExitCode::Done;
    }
    const auto [object, property] = ProjectPath::find(file.project(), path);
    if (!object) {
        return Advice::notFound(file.project(), path, call);
    }
    if (!property) {
        printObject(*object, true, call);
    } else if (const ItemList *list = property->itemList()) {
        printList(*list, call);
    } else {
        printValue(*property, call);
    }
    return ExitCode::Done;
}

} // namespace

const Verb treeVerb{
    .name = "tree",
    .arguments = "FILE [PATH]",
    .summary = "show the objects of a project, one of them, or a value",
    .details =
        [] {
            return uR"(Shows the tree of all objects, each with its class and name. PATH consists of the names from
the top down, joined with ".", and may end with the id of a property. "Main" shows the screen Main,
"Main.pump1" shows its element pump1 with its properties and everything below it, and
"Main.pump1.position" prints only that value. Elements in a group appear below the group. The
path of a variable or an image is its name. The id of a list ("screens") shows the contents of
the list. Values are in the form that people write and "corvex edit" reads; --raw prints the stored
texts, and so does JSON. There each object has "class", "name", "properties" and "children".)"_s;
        },
    .example = "corvex tree examples/PumpStation/PumpStation.kdproj",
    .mostArguments = 2,
    .opensProjects = true,
    .options = [] { return QList<QCommandLineOption>{rawOption()}; },
    .run = onProject<run>,
};

} // namespace Halvane::Corvex::Tool
