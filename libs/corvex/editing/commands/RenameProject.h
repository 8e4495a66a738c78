// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Project;

//! Renames a project, its folder and its file.
class CORVEX_EXPORT RenameProject : public ModelCommand
{
public:
    RenameProject(Project *project, const QString &newName, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
