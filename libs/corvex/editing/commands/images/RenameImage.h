// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Gives a picture and its file another name, which all that shows it follows.
class RenameImage : public ModelCommand
{
public:
    RenameImage(DesignerObject *image, const QString &newName, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
