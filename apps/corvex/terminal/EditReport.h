// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

namespace Halvane::Corvex::Designer {
class EditScript;
}

namespace Halvane::Corvex::Tool {

class Call;
class ProjectFile;

//! Completes a verb that edited a project.
class EditReport
{
public:
    //! Call it before the first edit.
    static void prepare(Designer::EditScript &script, const Call &call);
    //! Saves the project. Undoes all edits instead for --dry-run, or if saving fails. A dry run prints the
    //! edits and every value that changed, as lines or JSON; otherwise they are printed only with --json.
    //! Values are in the readable form; with --raw in the stored one.
    //! Warns of values that the project keeps although they are invalid.
    static ExitCode finish(Designer::EditScript &script, const ProjectFile &file, const Call &call);
};

} // namespace Halvane::Corvex::Tool
