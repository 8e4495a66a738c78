// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/ProjectVariable.h"

namespace Halvane::Corvex::Designer {

//! Saves properties of an object on the device and restores them. Its value lists the saved properties.
class CORVEX_EXPORT AutoSettingVariable : public ProjectVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(AutoSettingVariable, ProjectVariable)

public:
    VariableType variableType() const override { return VariableType::DeviceVariable; }
    QVariant toVariant() const override { return value()->valueString(); }

    QString configurationKey() const override;

    //! The object whose properties are saved.
    const SharedProperty &typeOfObject() const { return m_typeOfObject; }

protected:
    using ProjectVariable::ProjectVariable;
    bool initializeProperties() override;
    SharedProperty initializeValueProperty() override;

private:
    SharedProperty m_typeOfObject;
};

} // namespace Halvane::Corvex::Designer
