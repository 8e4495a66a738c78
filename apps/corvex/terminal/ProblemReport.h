// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"

namespace Halvane::Corvex::Tool {

class Terminal;

//! What is wrong with one of the projects that a verb was called with.
struct ProblemsOfFile
{
    QString file; //!< as the user wrote it
    QList<Designer::Problem> problems;
};

//! How verbs print problems.
class ProblemReport
{
public:
    //! One line of text.
    static QString line(const Designer::Problem &problem);
    //! All problems as one JSON object.
    static void printJson(const QList<ProblemsOfFile> &all, Terminal &terminal);
};

} // namespace Halvane::Corvex::Tool
