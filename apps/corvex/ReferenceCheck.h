// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectProblems.h"

namespace Halvane::Corvex::Designer {
class Project;
}

namespace Halvane::Corvex::Tool {

/*! Looks at what the parts of a project say of each other: names that lead nowhere, and new values for
    properties that are not there or cannot hold them. The generated code is correct with any of them, and the
    device does without what they mean. */
class ReferenceCheck
{
public:
    //! In the order of the file. What a property tells itself is left to that.
    static QList<Problem> find(const Designer::Project &project);
};

} // namespace Halvane::Corvex::Tool
