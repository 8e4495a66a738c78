// SPDX-License-Identifier: MIT
#include "terminal/Call.h"

#include "terminal/Terminal.h"
#include "verbs/Verb.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

//! A character that nobody types; see shieldNumber().
constexpr QChar shield(0xFFFE);

//! Marks "-26" as an argument, which the parser would take for an option. Options never begin with a digit.
QString shieldNumber(const QString &argument)
{
    const bool isNumber =
        argument.size() > 1 && argument.at(0) == u'-' && (argument.at(1).isDigit() || argument.at(1) == u'.');
    return isNumber ? shield + argument : argument;
}

QString unshielded(const QString &argument)
{
    return argument.startsWith(shield) ? argument.mid(1) : argument;
}

} // namespace

Call::Call(const Verb &verb, Terminal &terminal)
    : m_verb(verb)
    , m_terminal(terminal)
{
    m_parser.addOptions(optionsOf(verb));
}

QList<QCommandLineOption> Call::optionsOf(const Verb &verb)
{
    QList<QCommandLineOption> options = verb.options ? verb.options() : QList<QCommandLineOption>();
    options.append(QCommandLineOption(u"json"_s, u"Print the result as JSON."_s));
    if (verb.opensProjects) {
        options.append({
            QCommandLineOption(u"plugins"_s, u"Load the element plug-ins from DIR."_s, u"DIR"_s),
            QCommandLineOption(u"configurations"_s,
                               u"Read the device models from the folders in DIR/Configurations."_s, u"DIR"_s),
        });
    }
    options.append(QCommandLineOption({u"h"_s, u"help"_s}, u"Show this page."_s));
    return options;
}

bool Call::parse(const QStringList &commandLine)
{
    QStringList shielded{QString()}; // the parser skips the program's name
    for (const QString &argument : commandLine) {
        shielded.append(shieldNumber(argument));
    }
    const bool isGood = m_parser.parse(shielded);
    if (isSet(u"json"_s)) {
        m_terminal.useJson();
    }
    if (!isGood) {
        misused(m_parser.errorText() + u" Put \"--\" before an argument that begins with \"-\"."_s);
        return false;
    }
    for (const QString &argument : m_parser.positionalArguments()) {
        m_arguments.append(unshielded(argument));
    }
    return asksForHelp() || hasRightCount();
}

bool Call::hasRightCount() const
{
    if (m_arguments.size() < m_verb.fewestArguments) {
        misused(u"\"%1\" needs more arguments: corvex %1 %2."_s.arg(QLatin1StringView(m_verb.name),
                                                                    QLatin1StringView(m_verb.arguments)));
        return false;
    }
    if (m_arguments.size() > m_verb.mostArguments) {
        misused(
            u"\"%1\" is an unexpected argument. Put quotes around an argument that contains spaces."_s.arg(
                argument(m_verb.mostArguments)));
        return false;
    }
    return true;
}

bool Call::asJson() const
{
    return m_terminal.usesJson();
}

JsonWriter &Call::json() const
{
    return m_terminal.json();
}

bool Call::asksForHelp() const
{
    return isSet(u"help"_s);
}

ExitCode Call::misused(const QString &message) const
{
    return failed(u"%1 See \"corvex help %2\"."_s.arg(message, QLatin1StringView(m_verb.name)),
                  ExitCode::Usage);
}

ExitCode Call::failed(const QString &message, ExitCode code) const
{
    m_terminal.complain(message);
    return code;
}

} // namespace Halvane::Corvex::Tool
