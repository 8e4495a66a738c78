// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Removes an object from a list without changing references to it.
class CORVEX_EXPORT RemoveObject : public ModelCommand
{
public:
    RemoveObject(const SharedProperty &list, DesignerObject *object, bool selected,
                 UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
