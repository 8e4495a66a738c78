// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/variables/RenameVariable.h"

#include "corvex/variables/ProjectVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

RenameVariable::RenameVariable(DesignerObject *variable, const QString &newName, UndoCommand *parent)
    : RenameObject(variable, ProjectVariable::kindName(), newName, u"Rename Project Variable \"%1\""_s,
                   parent)
{ }

} // namespace Halvane::Corvex::Designer
