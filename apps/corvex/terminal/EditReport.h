// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

namespace Halvane::Corvex::Designer {
class EditScript;
}

namespace Halvane::Corvex::Tool {

class Call;
class ProjectFile;

//! How a verb ends that has edited a project.
class EditReport
{
public:
    /*! Saves the project, or takes all edits back when the call says --dry-run or the project cannot be
       saved. A trial shows the edits and all changes of values that came with them, as lines or as JSON;
       otherwise they are shown with --json alone. */
    static ExitCode finish(Designer::EditScript &script, const ProjectFile &file, const Call &call);
};

} // namespace Halvane::Corvex::Tool
