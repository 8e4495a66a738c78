// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/NumberCheck.h"

#include "corvex/variables/NumberVariable.h"

namespace Halvane::Corvex::Designer {

bool NumberCheck::concerns(const DesignerProperty &property)
{
    const auto *variable = kindCast<ProjectVariable>(property.parentObject());
    return variable && &property == variable->value();
}

void NumberCheck::look(const DesignerProperty &property)
{
    const auto &variable = static_cast<const ProjectVariable &>(*property.parentObject());
    if (property.isValid() && NumberVariable::lacksNumber(variable)) {
        report(property, ProblemCode::NumberUnreadable, {property.valueString()});
    }
}

} // namespace Halvane::Corvex::Designer
