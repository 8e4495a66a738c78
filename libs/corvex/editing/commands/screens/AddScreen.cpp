// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/screens/AddScreen.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

AddScreen::AddScreen(DesignerObject *screen, Project *project, qsizetype index, UndoCommand *parent)
    : ModelCommand(project ? project->screens() : SharedProperty(), true, parent)
{
    if (!project || !kindCast<Screen>(screen)) {
        refuse(Common::LocalizationHelper::coreString(u"There is no screen to add, or no project."_s),
               {screen});
        return;
    }
    setTitle(u"Add Screen \"%1\""_s, screen->getIdName());
    addStep<InsertItemStep>(project->screens(), screen, index);
    setSelection({screen});
}

} // namespace Halvane::Corvex::Designer
