// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

//! Exchanges two items of a list.
class CORVEX_EXPORT SwapItems : public ModelCommand
{
public:
    SwapItems(const SharedProperty &list, DesignerObject *first, DesignerObject *second,
              UndoCommand *parent = nullptr);
};

} // namespace Halvane::Corvex::Designer
