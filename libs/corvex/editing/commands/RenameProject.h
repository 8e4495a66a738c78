// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Project;

//! Gives a project, its folder and its file another name.
class CORVEX_EXPORT RenameProject : public ModelCommand
{
public:
    RenameProject(Project *project, const QString &newName, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
