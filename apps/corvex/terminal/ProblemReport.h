// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"

#include <QStringList>

namespace Halvane::Corvex::Tool {

class ProjectFile;
class Terminal;

//! The problems of one project of a call.
struct ProblemsOfFile
{
    QString file; //!< as the user wrote it
    QList<Designer::Problem> problems;
    QList<QStringList> fixes; //!< what they are called, problem by problem; may be shorter
    QStringList reasons;      //!< why problems are approved, problem by problem
};

//! Prints problems.
class ProblemReport
{
public:
    //! Marks what is approved. With \a withFixes it looks for fixes, too, which takes time.
    static ProblemsOfFile make(const ProjectFile &file, const QList<Designer::Problem> &problems,
                               bool withFixes);
    //! What is left to a user who has approved the rest: all but approved warnings and hints.
    static bool isOpen(const Designer::Problem &problem);
    //! "3 problems, 2 approved"; empty when nothing is approved.
    static QString summary(const QList<Designer::Problem> &problems);
    //! A problem as one line of text.
    static QString line(const Designer::Problem &problem);
    //! All problems as one JSON object.
    static void printJson(const QList<ProblemsOfFile> &all, Terminal &terminal);
};

} // namespace Halvane::Corvex::Tool
