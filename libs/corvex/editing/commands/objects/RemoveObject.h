// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Takes an object out of a list and leaves all that refers to it as it is.
class CORVEX_EXPORT RemoveObject : public ModelCommand
{
public:
    RemoveObject(const SharedProperty &list, DesignerObject *object, bool selected,
                 UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
