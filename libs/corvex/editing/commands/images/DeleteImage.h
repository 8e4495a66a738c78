// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/objects/DeleteObject.h"

namespace Halvane::Corvex::Designer {

//! The file is kept until the project is saved.
class CORVEX_EXPORT DeleteImage : public DeleteObject
{
public:
    explicit DeleteImage(DesignerObject *image, UndoCommand *parent = nullptr);

    Deletion deletion() const override { return Deletion::Image; }
};

} // namespace Halvane::Corvex::Designer
