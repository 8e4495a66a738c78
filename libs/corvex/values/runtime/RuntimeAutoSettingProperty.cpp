// SPDX-License-Identifier: MIT
#include "corvex/values/runtime/RuntimeAutoSettingProperty.h"

namespace Halvane::Corvex::Designer {

RuntimeAutoSettingProperty::RuntimeAutoSettingProperty(const QString &property, const QString &displayName,
                                                       VariableType type, VariableAccessMode accessMode,
                                                       const QString &description,
                                                       const QString &defaultValue)
    : RuntimeProperty(property, displayName, type, accessMode, description)
    , m_defaultValue(defaultValue)
{ }

RuntimeAutoSettingProperty::RuntimeAutoSettingProperty(const QString &property, VariableType type,
                                                       VariableAccessMode accessMode,
                                                       const QString &defaultValue)
    : RuntimeProperty(property, type, accessMode)
    , m_defaultValue(defaultValue)
{ }

bool RuntimeAutoSettingProperty::isValid() const
{
    return !property().isEmpty() && type() != Common::EnumHelper::NoVariable;
}

bool RuntimeAutoSettingProperty::isSimilar(const RuntimeAutoSettingProperty &other) const
{
    return RuntimeProperty::isSimilar(other) && m_defaultValue == other.m_defaultValue;
}

} // namespace Halvane::Corvex::Designer
