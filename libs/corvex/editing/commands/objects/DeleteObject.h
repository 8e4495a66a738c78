// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Removes an object from the model, and all references to it and to everything below it. The command has no
//! text of its own.
class CORVEX_EXPORT DeleteObject : public ModelCommand
{
public:
    DeleteObject(DesignerObject *object, bool selected, UndoCommand *parent = nullptr);
    //! One of several objects that are deleted together. Drops all references to \a together; if that is
    //! empty, another command drops the references to this object.
    DeleteObject(DesignerObject *object, const QList<DesignerObject *> &together, bool selected,
                 UndoCommand *parent);

protected:
    //! Refuses an object that is not a \a className.
    DeleteObject(DesignerObject *object, const QString &className, const QString &title, UndoCommand *parent);
};

} // namespace Halvane::Corvex::Designer
