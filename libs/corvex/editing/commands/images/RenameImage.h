// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Gives a picture and its file another name, which all that shows it follows.
class CORVEX_EXPORT RenameImage : public ModelCommand
{
public:
    RenameImage(DesignerObject *image, const QString &newName, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
