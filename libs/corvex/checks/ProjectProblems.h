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

//! Finds all problems of a project in one walk, using all processors.
class CORVEX_EXPORT ProjectProblems
{
public:
    /*! In the order of the checks: parts of the file that were not read, a model that is not in \a models,
        invalid values, and so on; generated code comes last. The project must have been validated, and must
        not change meanwhile. The result does not depend on the number of processors. It is empty if \a
        progress is cancelled.
    */
    static QList<Problem> find(const Project &project, const ConfigurationContainer &models,
                               Common::Progress *progress = nullptr);
};

} // namespace Halvane::Corvex::Designer
