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
    QList<QStringList> fixes; //!< the texts of the fixes for each problem; may be shorter than the list of
                              //!< problems
    QStringList reasons;      //!< the reasons of approvals for each problem
};

//! Prints problems.
class ProblemReport
{
public:
    //! Marks approved problems. With \a withFixes also searches for fixes, which is slow.
    static ProblemsOfFile make(const ProjectFile &file, const QList<Designer::Problem> &problems,
                               bool withFixes);
    //! Whether the user still has to handle the problem: false only for approved warnings and hints.
    static bool isOpen(const Designer::Problem &problem);
    //! "3 problems, 2 approved"; empty if nothing is approved.
    static QString summary(const QList<Designer::Problem> &problems);
    //! A problem as one line of text.
    static QString line(const Designer::Problem &problem);
    //! All problems as one JSON object.
    static void printJson(const QList<ProblemsOfFile> &all, Terminal &terminal);
};

} // namespace Halvane::Corvex::Tool
