// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Removes a filter from a screen. The elements in the filter are not deleted.
class CORVEX_EXPORT DeleteFilter : public ModelCommand
{
public:
    DeleteFilter(const SharedProperty &filters, DesignerObject *filter, bool selected,
                 UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
