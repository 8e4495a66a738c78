// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/variables/ImportVariables.h"

#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/variables/exchange/VariableImport.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ImportVariables::ImportVariables(const SharedProperty &variables, VariableImport &import)
    : ModelCommand(variables, false, nullptr)
{
    setTitle(u"Import variables"_s);
    for (const auto &[property, after] : import.changes()) {
        addValueStep(property, after);
    }
    for (std::unique_ptr<DesignerObject> &variable : import.takeAdditions()) {
        addStep<InsertItemStep>(variables, variable.release());
    }
}

} // namespace Halvane::Corvex::Designer
