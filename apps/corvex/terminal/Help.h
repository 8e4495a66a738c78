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
    static QString unknownVerb(const QString &name);
    //! Usage, options and an example of a verb; for null all verbs and what the exit codes mean.
    static void show(const Verb *verb, Terminal &terminal);
};

} // namespace Halvane::Corvex::Tool
