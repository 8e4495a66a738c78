// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class VariableImport;

//! Takes over a table of variables, in one step of the history: values, and variables that are new.
class CORVEX_EXPORT ImportVariables : public ModelCommand
{
public:
    //! Takes the additions of \a import, which was made for the project whose list \a variables is.
    ImportVariables(const SharedProperty &variables, VariableImport &import);
};

} // namespace Halvane::Corvex::Designer
