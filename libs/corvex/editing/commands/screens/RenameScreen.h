// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/objects/RenameObject.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT RenameScreen : public RenameObject
{
public:
    RenameScreen(DesignerObject *screen, const QString &newName, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
