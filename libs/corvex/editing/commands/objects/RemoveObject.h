// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Takes an object out of a list and leaves all that refers to it as it is.
class RemoveObject : public ModelCommand
{
public:
    RemoveObject(const SharedProperty &list, DesignerObject *object, bool selected,
                 UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
