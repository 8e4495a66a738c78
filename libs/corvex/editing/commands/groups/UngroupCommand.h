// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Puts the members of a group in its place, where they are seen as before. References to them lose the name
//! of the group; those to the group itself are dropped.
class CORVEX_EXPORT UngroupCommand : public ModelCommand
{
public:
    explicit UngroupCommand(DesignerObject *group, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
