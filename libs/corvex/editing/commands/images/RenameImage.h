// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Renames an image and its file, and updates the elements that show it.
class CORVEX_EXPORT RenameImage : public ModelCommand
{
public:
    RenameImage(DesignerObject *image, const QString &newName, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
