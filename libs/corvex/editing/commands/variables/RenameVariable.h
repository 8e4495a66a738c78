// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/objects/RenameObject.h"

namespace Halvane::Corvex::Designer {

class RenameVariable : public RenameObject
{
public:
    RenameVariable(DesignerObject *variable, const QString &newName, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
