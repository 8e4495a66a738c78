// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/ProjectVariable.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT ColorVariable : public ProjectVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ColorVariable, ProjectVariable)

public:
    VariableType variableType() const override { return VariableType::ColorVariable; }
    QVariant toVariant() const override { return typedValue(value()->valueString()); }

    //! A QColor; invalid if the text is not a colour.
    static QVariant typedValue(QStringView text);

protected:
    using ProjectVariable::ProjectVariable;
    SharedProperty initializeValueProperty() override;
};

} // namespace Halvane::Corvex::Designer
