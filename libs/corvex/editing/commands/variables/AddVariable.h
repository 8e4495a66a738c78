// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Project;

class AddVariable : public ModelCommand
{
public:
    AddVariable(DesignerObject *variable, Project *project, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
