// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/ProjectVariable.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT StringVariable : public ProjectVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(StringVariable, ProjectVariable)

public:
    VariableType variableType() const override { return VariableType::StringVariable; }
    QVariant toVariant() const override { return value()->valueString(); }

protected:
    using ProjectVariable::ProjectVariable;
    SharedProperty initializeValueProperty() override;
};

} // namespace Halvane::Corvex::Designer
