// SPDX-License-Identifier: MIT
// From the arguments of the program to the verb that they name.
#include "Call.h"
#include "Help.h"
#include "Terminal.h"
#include "Verb.h"

#include <QApplication>
#include <QFile>

#include <memory>

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

//! Most verbs start at once since they do without fonts; those that draw do so without a display.
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

//! What the program calls, with all its arguments, its own name among them.
extern "C" Q_DECL_EXPORT int corvexRun(const QStringList &commandLine)
{
    using namespace Halvane::Corvex::Tool;
    const QStringList arguments = commandLine.mid(1);
    // The application object sees none of the arguments: Qt would take some for its own.
    QByteArray program = QFile::encodeName(commandLine.value(0));
    char *argv[] = {program.data(), nullptr};
    int argc = 1;
    const std::unique_ptr<QCoreApplication> application = makeApplication(arguments.value(0), argc, argv);
    Terminal terminal;
    const ExitCode code = run(arguments, terminal);
    return int(terminal.finish() ? code : ExitCode::File);
}
