// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Tool {

class Terminal;
struct Verb;

//! Prints the help pages.
class Help
{
public:
    static QString unknownVerb(const QString &name);
    //! Prints usage, options and an example of a verb; for null the list of verbs and the exit codes.
    static void show(const Verb *verb, Terminal &terminal);
};

} // namespace Halvane::Corvex::Tool
