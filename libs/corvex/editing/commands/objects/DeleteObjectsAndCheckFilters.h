// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Screen;

//! Deletes elements of a screen, and filters that only list these elements. Filters that also list others are
//! deleted if the user agrees, see EditingDialogs; otherwise they lose the deleted names.
class CORVEX_EXPORT DeleteObjectsAndCheckFilters : public ModelCommand
{
public:
    DeleteObjectsAndCheckFilters(const QList<DesignerObject *> &objects, Screen *screen,
                                 UndoCommand *parent = nullptr);

    //! Adds a command for each object to \a parent; together they drop all references. Duplicates, and
    //! objects below others, are deleted once.
    static QList<DesignerObject *> addDeletions(const QList<DesignerObject *> &objects, UndoCommand *parent);
};

} // namespace Halvane::Corvex::Designer
