// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Screen;

/*! Deletes elements of a screen, and the filters that list nothing but them. Filters that list others too go
    when the user says so, see EditingDialogs, and lose the deleted names otherwise. */
class CORVEX_EXPORT DeleteObjectsAndCheckFilters : public ModelCommand
{
public:
    DeleteObjectsAndCheckFilters(const QList<DesignerObject *> &objects, Screen *screen,
                                 UndoCommand *parent = nullptr);

    //! Gives \a parent a command for each object, which together drop all references to them. Objects that
    //! are there twice, or stand below others of them, are deleted once.
    static QList<DesignerObject *> addDeletions(const QList<DesignerObject *> &objects, UndoCommand *parent);
};

} // namespace Halvane::Corvex::Designer
