// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Gives a screen or a variable another name, which all that refers to it follows. The base of the commands
//! for each of them.
class CORVEX_EXPORT RenameObject : public ModelCommand
{
public:
    void redo() override;
    void undo() override;

protected:
    //! Refuses an object that is none of \a className, and a name that it cannot have.
    RenameObject(DesignerObject *object, const QString &className, const QString &newName,
                 const QString &title, UndoCommand *parent);
};

} // namespace Halvane::Corvex::Designer
