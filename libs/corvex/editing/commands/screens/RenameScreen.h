// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/objects/RenameObject.h"

namespace Halvane::Corvex::Designer {

class RenameScreen : public RenameObject
{
public:
    RenameScreen(DesignerObject *screen, const QString &newName, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
