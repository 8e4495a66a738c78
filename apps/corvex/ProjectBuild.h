// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

#include <QString>

namespace Halvane::Corvex::Tool {

class Call;

//! The build of the project that a verb was called with.
class ProjectBuild
{
public:
    enum class WithProblems { Refuse, Build };

    /*! Names all problems of the project to the user, and brings its build to \a folder, see DeviceFolder.
       Problems if it was refused for them, or could not be built with them. */
    static ExitCode run(const Call &call, const QString &folder, WithProblems withProblems);
};

} // namespace Halvane::Corvex::Tool
