// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Project;

class CORVEX_EXPORT AddVariable : public ModelCommand
{
public:
    AddVariable(DesignerObject *variable, Project *project, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
