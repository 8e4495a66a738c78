// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace Halvane::Corvex::Designer {
class ConfigurationContainer;
}

namespace Halvane::Corvex::Tool {

class CodeCheck;
class ProjectFile;
class Terminal;

//! One thing that keeps a project from running on the device as its author means it.
struct Problem
{
    QString object;   //!< its path
    QString property; //!< its id; empty when the problem is none of a property
    QString message;
    qint64 line = 0; //!< in the project's file, 0 when it is not known
    qint64 column = 0;

    //! "object: property: message" on one line; the place in the file stands in for the property.
    QString toString() const;
};

//! Looks for everything that can be wrong with a project.
class ProjectProblems
{
public:
    //! What was not taken over from the file, a model that is not among \a models, what is invalid, numbers
    //! that are none, names that lead nowhere, and generated code that is none, in this order.
    static QList<Problem> find(const ProjectFile &file, const Designer::ConfigurationContainer &models);
    //! The same with a check that was given the code of all screens.
    static QList<Problem> find(const ProjectFile &file, const Designer::ConfigurationContainer &models,
                               CodeCheck &code);
    static void printJson(const QList<Problem> &problems, Terminal &terminal);
};

} // namespace Halvane::Corvex::Tool
