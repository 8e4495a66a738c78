// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/runtime/RuntimeProperty.h"

namespace Halvane::Corvex::Designer {

//! A runtime property whose value the device saves and restores, and its value until one has been saved.
class CORVEX_EXPORT RuntimeAutoSettingProperty : public RuntimeProperty
{
public:
    RuntimeAutoSettingProperty() = default;
    RuntimeAutoSettingProperty(const QString &property, const QString &displayName, VariableType type,
                               VariableAccessMode accessMode, const QString &description,
                               const QString &defaultValue);
    //! Displayed under its own name, without a description.
    RuntimeAutoSettingProperty(const QString &property, VariableType type, VariableAccessMode accessMode,
                               const QString &defaultValue);

    const QString &defaultValue() const { return m_defaultValue; }
    void setDefaultValue(const QString &defaultValue) { m_defaultValue = defaultValue; }

    VariableType propertyType() const { return type(); }
    //! It has both a name and a type.
    bool isValid() const;
    //! It has no default value.
    bool isUndefined() const { return m_defaultValue.isEmpty(); }
    //! The same property, type, access mode and default value.
    bool isSimilar(const RuntimeAutoSettingProperty &other) const;

    friend bool operator==(const RuntimeAutoSettingProperty &, const RuntimeAutoSettingProperty &) = default;

private:
    QString m_defaultValue;
};

} // namespace Halvane::Corvex::Designer
