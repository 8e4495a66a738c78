// SPDX-License-Identifier: MIT
#include "terminal/Help.h"

#include "corvex/editing/words/Suggestion.h"

#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

//! "-o, --output DIR"
QString spelling(const QCommandLineOption &option)
{
    QStringList names;
    for (const QString &name : option.names()) {
        names.append((name.size() == 1 ? u"-"_s : u"--"_s) + name);
    }
    const QString value = option.valueName();
    return names.join(", "_L1) + (value.isEmpty() ? QString() : u' ' + value);
}

QString usage(const Verb &verb)
{
    return u"corvex %1 %2"_s.arg(QLatin1StringView(verb.name), QLatin1StringView(verb.arguments)).trimmed();
}

QStringList verbNames()
{
    QStringList names;
    for (const Verb *verb : allVerbs()) {
        names.append(QString::fromLatin1(verb->name));
    }
    return names;
}

void writePage(const Verb &verb, JsonWriter &json)
{
    json.beginObject();
    json.member("verb"_L1, QString::fromLatin1(verb.name));
    json.member("usage"_L1, usage(verb));
    json.member("summary"_L1, QString::fromLatin1(verb.summary));
    json.name("options"_L1);
    json.beginObject();
    for (const QCommandLineOption &option : Call::optionsOf(verb)) {
        json.name(spelling(option));
        json.value(option.description());
    }
    json.endObject();
    json.member("example"_L1, QString::fromLatin1(verb.example));
    json.endObject();
}

void printVerbs(Terminal &terminal)
{
    terminal.print(u"corvex VERB [OPTIONS] ARGUMENTS: create, check, inspect and build projects"_s);
    terminal.print({});
    const QStringList names = verbNames();
    const qsizetype width = std::ranges::max_element(names, {}, &QString::size)->size();
    for (const Verb *verb : allVerbs()) {
        terminal.print(u"  %1  %2"_s.arg(QString::fromLatin1(verb->name).leftJustified(width),
                                         QLatin1StringView(verb->summary)));
    }
    terminal.print({});
    terminal.print(
        u"\"corvex help VERB\" explains a verb and gives an example. \"corvex --version\" prints the"_s);
    terminal.print(u"version. Every verb prints JSON with --json."_s);
    terminal.print({});
    terminal.print(
        u"Exit codes: 0 done, 1 the project has problems, 2 wrong usage, 3 a file cannot be read or"_s);
    terminal.print(u"written."_s);
}

void printPage(const Verb &verb, Terminal &terminal)
{
    terminal.print(usage(verb));
    terminal.print({});
    terminal.print(verb.details());
    terminal.print({});
    terminal.print(u"Options:"_s);
    const QList<QCommandLineOption> options = Call::optionsOf(verb);
    qsizetype width = 0;
    for (const QCommandLineOption &option : options) {
        width = std::max(width, spelling(option).size());
    }
    for (const QCommandLineOption &option : options) {
        terminal.print(u"  %1  %2"_s.arg(spelling(option).leftJustified(width), option.description()));
    }
    terminal.print({});
    terminal.print(u"Example:"_s);
    terminal.print(u"  %1"_s.arg(QLatin1StringView(verb.example)));
}

void printJson(const Verb *verb, Terminal &terminal)
{
    JsonWriter &json = terminal.json();
    if (verb) {
        writePage(*verb, json);
        return;
    }
    json.beginObject();
    json.name("verbs"_L1);
    json.beginArray();
    for (const Verb *each : allVerbs()) {
        writePage(*each, json);
    }
    json.endArray();
    json.endObject();
}

} // namespace

QString Help::unknownVerb(const QString &name)
{
    return Designer::Suggestion::unknown(u"verb"_s, name, verbNames(), u"\"corvex help\" lists them all."_s);
}

void Help::show(const Verb *verb, Terminal &terminal)
{
    if (terminal.usesJson()) {
        printJson(verb, terminal);
    } else if (verb) {
        printPage(*verb, terminal);
    } else {
        printVerbs(terminal);
    }
}

} // namespace Halvane::Corvex::Tool
