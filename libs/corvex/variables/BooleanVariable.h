// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/ProjectVariable.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT BooleanVariable : public ProjectVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(BooleanVariable, ProjectVariable)

public:
    VariableType variableType() const override { return VariableType::BooleanVariable; }
    QVariant toVariant() const override { return typedValue(value()->valueString()); }

    //! For exactly "true" and "false"; invalid for any other text.
    static QVariant typedValue(QStringView text);

protected:
    using ProjectVariable::ProjectVariable;
    SharedProperty initializeValueProperty() override;
};

} // namespace Halvane::Corvex::Designer
