// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/variables/AddVariable.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/project/Project.h"
#include "corvex/variables/ProjectVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

AddVariable::AddVariable(DesignerObject *variable, Project *project, UndoCommand *parent)
    : ModelCommand(project ? project->variables() : SharedProperty(), false, parent)
{
    if (!project || !kindCast<ProjectVariable>(variable)) {
        refuse(Common::LocalizationHelper::coreString(u"There is no variable to add, or no project."_s),
               {variable});
        return;
    }
    setTitle(u"Add Project Variable \"%1\""_s, variable->getIdName());
    addStep<InsertItemStep>(project->variables(), variable);
}

} // namespace Halvane::Corvex::Designer
