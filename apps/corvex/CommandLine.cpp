// SPDX-License-Identifier: MIT
// From the arguments of the program to the verb that they name.
#include "Call.h"
#include "Help.h"
#include "Terminal.h"
#include "Verb.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

QString unknownVerb(const QString &name)
{
    const QString nearest = Help::nearest(name, Help::verbNames());
    return nearest.isEmpty()
               ? u"There is no verb \"%1\". \"corvex help\" lists them all."_s.arg(name)
               : u"There is no verb \"%1\"; did you mean \"%2\"? \"corvex help\" lists them all."_s.arg(
                   name, nearest);
}

ExitCode run(const QStringList &arguments, Terminal &terminal)
{
    const QString name = arguments.value(0);
    if (name.isEmpty()) {
        terminal.complain(u"A verb is missing. \"corvex help\" lists them all."_s);
        return ExitCode::Usage;
    }
    if (name == "--help"_L1 || name == "-h"_L1) {
        Help::printVerbs(terminal);
        return ExitCode::Done;
    }
    const Verb *verb = findVerb(name);
    if (!verb) {
        terminal.complain(unknownVerb(name));
        return ExitCode::Usage;
    }
    Call call(*verb, terminal);
    if (!call.parse(arguments.mid(1))) {
        return ExitCode::Usage;
    }
    if (call.asksForHelp()) {
        Help::printPage(*verb, terminal);
        return ExitCode::Done;
    }
    return verb->run(call);
}

} // namespace

} // namespace Halvane::Corvex::Tool

//! What the program calls, once there is an application object.
extern "C" Q_DECL_EXPORT int corvexRun()
{
    using namespace Halvane::Corvex::Tool;
    Terminal terminal;
    const ExitCode code = run(QCoreApplication::arguments().mid(1), terminal);
    return int(terminal.finish() ? code : ExitCode::File);
}
