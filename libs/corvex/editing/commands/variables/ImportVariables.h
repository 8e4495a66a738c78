// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class VariableImport;

//! Imports a table of variables in one step of the history: values and new variables.
class CORVEX_EXPORT ImportVariables : public ModelCommand
{
public:
    //! Takes the new variables of \a import, which was created for the project with the list \a variables.
    ImportVariables(const SharedProperty &variables, VariableImport &import);
};

} // namespace Halvane::Corvex::Designer
