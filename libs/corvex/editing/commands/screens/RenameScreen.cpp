// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/screens/RenameScreen.h"

#include "corvex/project/Screen.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

RenameScreen::RenameScreen(DesignerObject *screen, const QString &newName, UndoCommand *parent)
    : RenameObject(screen, Screen::kindName(), newName, u"Rename Screen \"%1\""_s, parent)
{ }

} // namespace Halvane::Corvex::Designer
