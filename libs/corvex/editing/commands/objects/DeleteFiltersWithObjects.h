// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Screen;

//! Deletes filters of a screen and, with \a withObjects, the elements in them.
class CORVEX_EXPORT DeleteFiltersWithObjects : public ModelCommand
{
public:
    DeleteFiltersWithObjects(const QList<DesignerObject *> &filters, Screen *screen, bool withObjects,
                             bool selected, UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
