// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Tool {

class JsonWriter;
class Terminal;
struct Verb;

//! A verb with its arguments and options.
class Call
{
public:
    Call(const Verb &verb, Terminal &terminal);
    Q_DISABLE_COPY_MOVE(Call)

    //! Parses the command line after the verb. Returns false, after a message, for wrong usage.
    bool parse(const QStringList &commandLine);

    const Verb &verb() const { return m_verb; }
    Terminal &terminal() const { return m_terminal; }
    const QStringList &arguments() const { return m_arguments; }
    //! Empty if the argument was omitted.
    QString argument(qsizetype index) const { return m_arguments.value(index); }
    bool isSet(const QString &option) const { return m_parser.isSet(option); }
    QString value(const QString &option) const { return m_parser.value(option); }
    bool asJson() const;
    //! The JSON result of the verb. Only valid with asJson().
    JsonWriter &json() const;
    bool asksForHelp() const;

    // These functions print a message and return the matching exit code.
    //! Prints the message with a pointer to the verb's help page.
    ExitCode misused(const QString &message) const;
    ExitCode failed(const QString &message, ExitCode code = ExitCode::File) const;

    //! All options of a verb, including the common ones.
    static QList<QCommandLineOption> optionsOf(const Verb &verb);

private:
    bool hasRightCount() const;

    const Verb &m_verb;
    Terminal &m_terminal;
    QCommandLineParser m_parser;
    QStringList m_arguments;
};

} // namespace Halvane::Corvex::Tool
