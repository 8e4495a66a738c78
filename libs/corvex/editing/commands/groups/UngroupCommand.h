// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Replaces a group by its members. Their positions on the screen do not change. References to them lose the
//! name of the group; references to the group itself are dropped.
class CORVEX_EXPORT UngroupCommand : public ModelCommand
{
public:
    explicit UngroupCommand(DesignerObject *group, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
