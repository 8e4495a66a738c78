// SPDX-License-Identifier: MIT
// Finds the verb that the arguments name, and runs it.
#include "terminal/Call.h"
#include "terminal/Help.h"
#include "terminal/Terminal.h"
#include "verbs/Verb.h"

#include <QApplication>
#include <QFile>

#include <memory>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

ExitCode runWithoutVerb(QStringList arguments, Terminal &terminal)
{
    if (arguments.removeAll(u"--json"_s) > 0) {
        terminal.useJson();
    }
    const QString name = arguments.value(0);
    if (name == "--help"_L1 || name == "-h"_L1) {
        Help::show(nullptr, terminal);
        return ExitCode::Done;
    }
    if (name == "--version"_L1 || name == "-v"_L1) {
        terminal.print(u"corvex %1"_s.arg(QCoreApplication::applicationVersion()));
        return ExitCode::Done;
    }
    terminal.complain(name.isEmpty() ? u"A verb is missing. \"corvex help\" lists them all."_s
                                     : Help::unknownVerb(name));
    return ExitCode::Usage;
}

ExitCode run(const QStringList &arguments, Terminal &terminal)
{
    const QString name = arguments.value(0);
    const Verb *verb = findVerb(name);
    if (!verb) {
        return runWithoutVerb(arguments, terminal);
    }
    Call call(*verb, terminal);
    if (!call.parse(arguments.mid(1))) {
        return ExitCode::Usage;
    }
    if (call.asksForHelp()) {
        Help::show(verb, terminal);
        return ExitCode::Done;
    }
    return verb->run(call);
}

//! Creates the lightest application object that the verb can run on: most need no fonts, and those that draw
//! need no display.
std::unique_ptr<QCoreApplication> makeApplication(const QString &verbName, int &argc, char **argv)
{
    const Verb *verb = findVerb(verbName);
    if (verb && verb->draws) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return std::make_unique<QApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

} // namespace Halvane::Corvex::Tool

//! The entry point of the library. The program's own name is the first argument.
extern "C" Q_DECL_EXPORT int corvexRun(const QStringList &commandLine)
{
    using namespace Halvane::Corvex::Tool;
    const QStringList arguments = commandLine.mid(1);
    // Hide the arguments from Qt, which would interpret some of them.
    QByteArray program = QFile::encodeName(commandLine.value(0));
    char *argv[] = {program.data(), nullptr};
    int argc = 1;
    const std::unique_ptr<QCoreApplication> application = makeApplication(arguments.value(0), argc, argv);
    Terminal terminal;
    const ExitCode code = run(arguments, terminal);
    return int(terminal.finish() ? code : ExitCode::File);
}
