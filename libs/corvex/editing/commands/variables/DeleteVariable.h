// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/objects/DeleteObject.h"

namespace Halvane::Corvex::Designer {

class DeleteVariable : public DeleteObject
{
public:
    explicit DeleteVariable(DesignerObject *variable, UndoCommand *parent = nullptr);

    Deletion deletion() const override { return Deletion::Variable; }
};

} // namespace Halvane::Corvex::Designer
