// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Renames a screen or a variable and updates all references. The base of the commands for each of them.
class CORVEX_EXPORT RenameObject : public ModelCommand
{
public:
    void redo() override;
    void undo() override;

protected:
    //! Refuses an object that is not a \a className, and an invalid name.
    RenameObject(DesignerObject *object, const QString &className, const QString &newName,
                 const QString &title, UndoCommand *parent);
};

} // namespace Halvane::Corvex::Designer
