// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/objects/DeleteObject.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT DeleteVariable : public DeleteObject
{
public:
    explicit DeleteVariable(DesignerObject *variable, UndoCommand *parent = nullptr);

    Deletion deletion() const override { return Deletion::Variable; }
};

} // namespace Halvane::Corvex::Designer
