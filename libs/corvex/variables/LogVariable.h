// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/NumberVariable.h"

namespace Halvane::Corvex::Designer {

//! Numbers that the device samples at an interval and stores.
class CORVEX_EXPORT LogVariable : public ProjectVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(LogVariable, ProjectVariable)

public:
    VariableType variableType() const override { return VariableType::LogVariable; }
    //! Like that of a NumberVariable.
    QVariant toVariant() const override { return NumberVariable::typedValue(value()->valueString()); }
    //! None, because the element that samples the log contains its settings.
    QString configurationKey() const override { return {}; }

protected:
    using ProjectVariable::ProjectVariable;
    bool initializeProperties() override;
    SharedProperty initializeValueProperty() override;
};

} // namespace Halvane::Corvex::Designer
