// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Moves an object to the end of another list. What refers to it loses the name of a group that it leaves; on
//! another screen nothing refers to it any more.
class CORVEX_EXPORT MoveObject : public ModelCommand
{
public:
    MoveObject(const SharedProperty &from, const SharedProperty &to, DesignerObject *object, bool selected,
               UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
