// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Project;

//! Gives a project, its folder and its file another name.
class RenameProject : public ModelCommand
{
public:
    RenameProject(Project *project, const QString &newName, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
