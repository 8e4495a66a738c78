// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"

namespace Halvane::Corvex::Tool {

class Terminal;

//! How verbs print problems.
class ProblemReport
{
public:
    //! One line of text.
    static QString line(const Designer::Problem &problem);
    //! All problems as one JSON object.
    static void printJson(const QList<Designer::Problem> &problems, Terminal &terminal);
};

} // namespace Halvane::Corvex::Tool
