// SPDX-License-Identifier: MIT
#include "terminal/Call.h"
#include "terminal/Help.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

ExitCode run(const Call &call)
{
    const QString name = call.argument(0);
    const Verb *verb = findVerb(name);
    if (!name.isEmpty() && !verb) {
        return call.failed(Help::unknownVerb(name), ExitCode::Usage);
    }
    Help::show(verb, call.terminal());
    return ExitCode::Done;
}

} // namespace

const Verb helpVerb{
    .name = "help",
    .arguments = "[VERB]",
    .summary = "list the verbs, or explain one",
    .details = [] { return uR"(Lists all verbs, or shows the usage, the options and an example of one.)"_s; },
    .example = "corvex help build",
    .fewestArguments = 0,
    .run = run,
};

} // namespace Halvane::Corvex::Tool
