// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Tool {

class Terminal;
struct Verb;

//! What the program says about itself.
class Help
{
public:
    static QStringList verbNames();
    //! All verbs and what the exit codes mean.
    static void printVerbs(Terminal &terminal);
    //! Usage, options and an example of one verb.
    static void printPage(const Verb &verb, Terminal &terminal);
    //! The same as JSON; of all verbs for null.
    static void printJson(const Verb *verb, Terminal &terminal);

    //! Of \a names the one that \a text was probably meant to be; empty when none is near.
    static QString nearest(const QString &text, const QStringList &names);
};

} // namespace Halvane::Corvex::Tool
