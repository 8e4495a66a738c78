// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"
#include "corvex/common/Export.h"

namespace Halvane::Corvex::Common {
class Progress;
} // namespace Halvane::Corvex::Common

namespace Halvane::Corvex::Designer {

class ConfigurationContainer;
class Project;

//! Looks for everything that can be wrong with a project, in one walk, which all processors share.
class CORVEX_EXPORT ProjectProblems
{
public:
    /*! In the order of the checks: what was not taken over from the file, a model that is not among \a
       models, invalid values, and so on; generated code comes last. The project must have been validated, and
       nothing may change it meanwhile. What is found does not depend on the number of processors. Nothing is
       found when \a progress is cancelled. */
    static QList<Problem> find(const Project &project, const ConfigurationContainer &models,
                               Common::Progress *progress = nullptr);
};

} // namespace Halvane::Corvex::Designer
