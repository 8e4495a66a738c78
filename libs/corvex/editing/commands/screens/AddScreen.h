// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Project;

class CORVEX_EXPORT AddScreen : public ModelCommand
{
public:
    //! \a index -1 means the end.
    AddScreen(DesignerObject *screen, Project *project, qsizetype index, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
