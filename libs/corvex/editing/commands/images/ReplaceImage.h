// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Replaces the contents of an image and optionally its name, and updates the elements that show it. The old
//! file is kept until the project is saved. The original location is not changed.
class CORVEX_EXPORT ReplaceImage : public ModelCommand
{
public:
    ReplaceImage(DesignerObject *image, const QString &newFile, const QString &name,
                 UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
