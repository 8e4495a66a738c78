// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

#include <QString>

namespace Halvane::Corvex::Tool {

class Call;

//! Builds the project of a call.
class ProjectBuild
{
public:
    enum class WithProblems { Refuse, Build };

    //! Prints all problems of the project and builds it into \a folder, see DeviceFolder. Returns
    //! ExitCode::Problems if problems prevent the build.
    static ExitCode run(const Call &call, const QString &folder, WithProblems withProblems);
};

} // namespace Halvane::Corvex::Tool
