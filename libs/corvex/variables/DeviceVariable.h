// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/ProjectVariable.h"

namespace Halvane::Corvex::Designer {

//! The base of the fieldbus variables, whose value is a map of names to values. It is not a kind of its own.
class CORVEX_EXPORT DeviceVariable : public ProjectVariable
{
    Q_OBJECT

public:
    VariableType variableType() const override { return VariableType::DeviceVariable; }
    QVariant toVariant() const override { return typedValue(value()->valueString()); }

    bool isFieldbus() const override { return true; }
    //! None, because each fieldbus has a file of its own.
    QString configurationKey() const override { return {}; }

    //! A QVariantMap of texts; invalid if the text is not a map, for example empty.
    static QVariant typedValue(const QString &text);

protected:
    using ProjectVariable::ProjectVariable;
    SharedProperty initializeValueProperty() override;
};

} // namespace Halvane::Corvex::Designer
