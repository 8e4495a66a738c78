// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

/*! Takes an object out of the model, and its names, with those of everything below it, out of all that refers
    to it. It has no text of its own. */
class CORVEX_EXPORT DeleteObject : public ModelCommand
{
public:
    DeleteObject(DesignerObject *object, bool selected, UndoCommand *parent = nullptr);
    //! One of several objects that go together. All references to \a together are dropped with this one; when
    //! that is empty, another command sees to those to this object.
    DeleteObject(DesignerObject *object, const QList<DesignerObject *> &together, bool selected,
                 UndoCommand *parent);

protected:
    //! Refuses an object that is none of \a className.
    DeleteObject(DesignerObject *object, const QString &className, const QString &title, UndoCommand *parent);
};

} // namespace Halvane::Corvex::Designer
