// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/screens/DeleteScreen.h"

#include "corvex/project/Screen.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

DeleteScreen::DeleteScreen(DesignerObject *screen, UndoCommand *parent)
    : DeleteObject(screen, Screen::kindName(), u"Delete Screen \"%1\""_s, parent)
{ }

} // namespace Halvane::Corvex::Designer
