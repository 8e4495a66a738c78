// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Gives a picture other contents and, perhaps, another name, which all that shows it follows. The old file
//! stays beside until the project has been saved. The original location stays what it was.
class CORVEX_EXPORT ReplaceImage : public ModelCommand
{
public:
    ReplaceImage(DesignerObject *image, const QString &newFile, const QString &name,
                 UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
