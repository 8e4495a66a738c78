// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"

namespace Halvane::Corvex::Designer {

class CodeCheck;
class ConfigurationContainer;
class Project;

//! Looks for everything that can be wrong with a project, in one walk.
class ProjectProblems
{
public:
    /*! In the order of the checks: what was not taken over from the file, a model that is not among \a
       models, invalid values, and so on; generated code comes last. The project must have been validated. */
    static QList<Problem> find(const Project &project, const ConfigurationContainer &models);
    //! The same with a check that was given the code of all screens.
    static QList<Problem> find(const Project &project, const ConfigurationContainer &models, CodeCheck &code);
};

} // namespace Halvane::Corvex::Designer
