// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/FileCheck.h"

#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

void FileCheck::look(const Project &project)
{
    for (const ReadNote &note : project.readNotes()) {
        const auto code = note.kind == ReadNote::Kept ? ProblemCode::FileKept : ProblemCode::FileDropped;
        report({code, note.place, {}, note.message, note.line, note.column});
    }
    if (QString error; !m_models.match(project.configurationObject(), &error)) {
        report(Problem::withMessage(*project.configuration(), ProblemCode::ModelUnknown, error));
    }
}

} // namespace Halvane::Corvex::Designer
