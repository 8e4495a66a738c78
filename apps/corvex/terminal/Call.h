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

//! A verb with the arguments and options that it was called with.
class Call
{
public:
    Call(const Verb &verb, Terminal &terminal);
    Q_DISABLE_COPY_MOVE(Call)

    /*! Takes the words of the command line that follow the verb. False, with a message, for wrong usage. */
    bool parse(const QStringList &commandLine);

    const Verb &verb() const { return m_verb; }
    Terminal &terminal() const { return m_terminal; }
    const QStringList &arguments() const { return m_arguments; }
    //! Empty for an argument that was left out.
    QString argument(qsizetype index) const { return m_arguments.value(index); }
    bool isSet(const QString &option) const { return m_parser.isSet(option); }
    QString value(const QString &option) const { return m_parser.value(option); }
    bool asJson() const;
    //! The result of the verb, when asJson().
    JsonWriter &json() const;
    bool asksForHelp() const;

    // Each tells the user what is wrong and gives the exit code for it.
    //! The message, with a pointer to the page of the verb.
    ExitCode misused(const QString &message) const;
    ExitCode failed(const QString &message, ExitCode code = ExitCode::File) const;

    //! All options of a verb, those that all verbs have among them.
    static QList<QCommandLineOption> optionsOf(const Verb &verb);

private:
    bool hasRightCount() const;

    const Verb &m_verb;
    Terminal &m_terminal;
    QCommandLineParser m_parser;
    QStringList m_arguments;
};

} // namespace Halvane::Corvex::Tool
