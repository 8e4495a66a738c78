// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/CompositeCommand.h"

namespace Halvane::Corvex::Designer {

class Screen;

//! Moves objects to a place in a list, possibly their own list.
class MoveObjects : public CompositeCommand
{
public:
    //! Before the item \a index of the list; -1 means the end.
    MoveObjects(const QList<DesignerObject *> &objects, const SharedProperty &list, qsizetype index);

    //! The screen of the list's items; null for a list of the project.
    static Screen *screenOf(const SharedProperty &list);

private:
    //! Why the object cannot be moved into the list; empty if it can.
    static QString refusalOf(const DesignerObject &object, const SharedProperty &list);
};

} // namespace Halvane::Corvex::Designer
