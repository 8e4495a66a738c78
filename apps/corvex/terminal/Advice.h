// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/words/EditRefusal.h"

#include "terminal/ExitCode.h"

namespace Halvane::Corvex::Designer {
class Project;
}

namespace Halvane::Corvex::Tool {

class Call;

//! Adds to a refusal which command lists the accepted values.
class Advice
{
public:
    //! The message, followed by a sentence that names the helpful list.
    static QString complete(const Designer::EditRefusal &refusal);
    //! Reports that the path does not exist.
    static ExitCode notFound(Designer::Project &project, const QString &path, const Call &call);
};

} // namespace Halvane::Corvex::Tool
