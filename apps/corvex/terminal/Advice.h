// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/words/EditRefusal.h"

#include "terminal/ExitCode.h"

namespace Halvane::Corvex::Designer {
class Project;
}

namespace Halvane::Corvex::Tool {

class Call;

//! Where this program shows what would do instead of what was refused.
class Advice
{
public:
    //! The message with a sentence about the list that would help.
    static QString complete(const Designer::EditRefusal &refusal);
    //! Tells the user that there is nothing of that path.
    static ExitCode notFound(Designer::Project &project, const QString &path, const Call &call);
};

} // namespace Halvane::Corvex::Tool
