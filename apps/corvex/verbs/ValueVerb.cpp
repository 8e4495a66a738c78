// SPDX-License-Identifier: MIT
#include "corvex/editing/words/Suggestion.h"

#include "ValueKinds.h"
#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

QStringList kindNames()
{
    QStringList names;
    for (const ValueKind &kind : valueKinds()) {
        names.append(QString::fromLatin1(kind.name));
    }
    return names;
}

QString details()
{
    QString text =
        u"Reads TEXT as a value of the kind KIND and prints it as a project file would contain it. TEXT can\n"
        "have the form that people write, such as \"120 x 40\" for a size; --readable prints this form. An\n"
        "invalid text is refused with exit code 1. The kinds, each with an example:\n"_s;
    for (const ValueKind &kind : valueKinds()) {
        text += u"\n  %1  %2"_s.arg(QString::fromLatin1(kind.name).leftJustified(18),
                                    QLatin1StringView(kind.example));
    }
    return text;
}

ExitCode run(const Call &call)
{
    const QString name = call.argument(0);
    const ValueKind *kind = findValueKind(name);
    if (!kind) {
        return call.misused(Designer::Suggestion::unknown(u"kind of values"_s, name, kindNames()));
    }
    const QString text = call.argument(1);
    const QString stored = kind->fromReadable ? kind->fromReadable(text) : QString();
    const std::optional<QString> canonical = kind->canonical(stored.isNull() ? text : stored);
    const QString shortForm = canonical && kind->toReadable ? kind->toReadable(*canonical) : QString();
    const QString readable = shortForm.isNull() ? canonical.value_or(text) : shortForm;
    if (call.asJson()) {
        JsonWriter &json = call.json();
        json.beginObject();
        json.member("kind"_L1, name);
        json.member("valid"_L1, canonical.has_value());
        json.member("text"_L1, canonical.value_or(text));
        json.member("readable"_L1, readable);
        json.endObject();
    } else if (canonical) {
        call.terminal().print(call.isSet(u"readable"_s) ? readable : *canonical);
    }
    if (!canonical) {
        return call.failed(u"\"%1\" is not a value of the kind \"%2\". An example is \"%3\"."_s.arg(
                               text, name, QLatin1StringView(kind->example)),
                           ExitCode::Problems);
    }
    return ExitCode::Done;
}

} // namespace

const Verb valueVerb{
    .name = "value",
    .arguments = "KIND TEXT",
    .summary = "check a value and print its canonical text",
    .details = details,
    .example = "corvex value color red",
    .fewestArguments = 2,
    .mostArguments = 2,
    .options =
        [] {
            return QList<QCommandLineOption>{
                QCommandLineOption(u"readable"_s, u"Print the form that people write."_s)};
        },
    .run = run,
};

} // namespace Halvane::Corvex::Tool
