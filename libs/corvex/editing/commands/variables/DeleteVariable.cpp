// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/variables/DeleteVariable.h"

#include "corvex/variables/ProjectVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

DeleteVariable::DeleteVariable(DesignerObject *variable, UndoCommand *parent)
    : DeleteObject(variable, ProjectVariable::kindName(), u"Delete Project Variable \"%1\""_s, parent)
{ }

} // namespace Halvane::Corvex::Designer
