// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/variables/ImportVariables.h"

#include "corvex/editing/commands/private/EditStep.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ImportVariables::ImportVariables(const SharedProperty &variables, VariableImport &import)
    : ImportVariables(variables, import.changes(), import.takeAdditions())
{ }

ImportVariables::ImportVariables(const SharedProperty &variables,
                                 const QList<VariableImport::Change> &changes,
                                 std::vector<std::unique_ptr<DesignerObject>> additions)
    : ModelCommand(variables, false, nullptr)
{
    setTitle(u"Import variables"_s);
    for (const auto &[property, after] : changes) {
        addValueStep(property, after);
    }
    for (std::unique_ptr<DesignerObject> &variable : additions) {
        addStep<InsertItemStep>(variables, variable.release());
    }
}

} // namespace Halvane::Corvex::Designer
