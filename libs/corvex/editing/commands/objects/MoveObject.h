// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Moves an object to another list, or to another place in its list. References to it lose the name of a
//! group that it leaves. If it moves to another screen, all references to it are dropped.
class CORVEX_EXPORT MoveObject : public ModelCommand
{
public:
    //! To the end of another list.
    MoveObject(const SharedProperty &from, const SharedProperty &to, DesignerObject *object, bool selected,
               UndoCommand *parent = nullptr);
    //! \a index counts the items of \a to without the object; -1 means the end. A sorted list puts the object
    //! in order.
    MoveObject(const SharedProperty &from, const SharedProperty &to, DesignerObject *object, qsizetype index,
               bool selected, UndoCommand *parent = nullptr);

private:
    void setupCommand(const SharedProperty &to, DesignerObject *object, qsizetype index);
    void followReferences(const SharedProperty &to, DesignerObject *object);
};

} // namespace Halvane::Corvex::Designer
