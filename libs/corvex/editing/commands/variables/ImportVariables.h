// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"
#include "corvex/variables/exchange/VariableImport.h"

#include <vector>

namespace Halvane::Corvex::Designer {

//! Imports a table of variables in one step of the history: values and new variables.
class CORVEX_EXPORT ImportVariables : public ModelCommand
{
public:
    //! Takes the new variables of \a import, which was created for the project with the list \a variables.
    ImportVariables(const SharedProperty &variables, VariableImport &import);
    //! Applies a part of an import.
    ImportVariables(const SharedProperty &variables, const QList<VariableImport::Change> &changes,
                    std::vector<std::unique_ptr<DesignerObject>> additions);
};

} // namespace Halvane::Corvex::Designer
