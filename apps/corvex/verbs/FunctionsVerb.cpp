// SPDX-License-Identifier: MIT
#include "corvex/editing/words/Suggestion.h"
#include "corvex/values/expressions/ExpressionFunction.h"

#include "terminal/Call.h"
#include "terminal/JsonWriter.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

using Designer::ExpressionFunction;
using Designer::Suggestion;

void printJson(const QList<ExpressionFunction> &functions, const Call &call)
{
    JsonWriter &json = call.json();
    json.beginObject();
    json.name("functions"_L1);
    json.beginArray();
    for (const ExpressionFunction &function : functions) {
        json.beginObject();
        json.member("name"_L1, QString(function.name));
        json.member("arguments"_L1, QString(function.arguments));
        json.member("result"_L1, QString(function.result));
        json.member("description"_L1, function.description());
        json.member("usableIn"_L1, function.usableIn());
        json.member("example"_L1, QString::fromUtf16(function.example));
        json.member("value"_L1, QString::fromUtf16(function.value));
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

void printOne(const ExpressionFunction &function, Terminal &terminal)
{
    const QString example = QString::fromUtf16(function.example);
    const QString value = QString::fromUtf16(function.value);
    terminal.print(function.signature());
    terminal.print(function.description());
    terminal.print(u"Usable in %1."_s.arg(function.usableIn()));
    terminal.print(value.isEmpty() ? u"Example: %1"_s.arg(example)
                                   : u"Example: %1 is %2"_s.arg(example, value));
}

ExitCode run(const Call &call)
{
    const QString name = call.argument(0);
    const ExpressionFunction *chosen = ExpressionFunction::find(name);
    if (!name.isEmpty() && !chosen) {
        QStringList names;
        for (const ExpressionFunction &function : ExpressionFunction::all()) {
            names.append(function.name);
        }
        return call.failed(Suggestion::unknown(u"function"_s, name, names), ExitCode::Usage);
    }
    if (call.asJson()) {
        printJson(chosen ? QList{*chosen} : ExpressionFunction::all(), call);
    } else if (chosen) {
        printOne(*chosen, call.terminal());
    } else {
        QString kinds;
        for (const ExpressionFunction &function : ExpressionFunction::all()) {
            if (const QString own = function.usableIn(); own != kinds) {
                kinds = own;
                call.terminal().print(u"In %1:"_s.arg(kinds));
            }
            call.terminal().print(u"%1  %2"_s.arg(function.signature(), -52).arg(function.description()));
        }
    }
    return ExitCode::Done;
}

} // namespace

const Verb functionsVerb{
    .name = "functions",
    .arguments = "[NAME]",
    .summary = "list the functions of expressions, or explain one",
    .details =
        [] {
            return uR"(Lists the functions that expressions can call, each with its arguments, their types and the type
of its result. With NAME, also shows an example and its value.)"_s;
        },
    .example = "corvex functions subString",
    .fewestArguments = 0,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
