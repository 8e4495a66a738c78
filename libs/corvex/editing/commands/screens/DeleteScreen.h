// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/objects/DeleteObject.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT DeleteScreen : public DeleteObject
{
public:
    explicit DeleteScreen(DesignerObject *screen, UndoCommand *parent = nullptr);

    Deletion deletion() const override { return Deletion::Screen; }
};

} // namespace Halvane::Corvex::Designer
