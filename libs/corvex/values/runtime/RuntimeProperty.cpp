// SPDX-License-Identifier: MIT
#include "corvex/values/runtime/RuntimeProperty.h"

namespace Halvane::Corvex::Designer {

RuntimeProperty::RuntimeProperty(const QString &property, const QString &displayName, VariableType type,
                                 VariableAccessMode accessMode, const QString &description)
    : m_property(property)
    , m_displayName(displayName)
    , m_description(description)
    , m_type(type)
    , m_accessMode(accessMode)
{ }

RuntimeProperty::RuntimeProperty(const QString &property, VariableType type, VariableAccessMode accessMode)
    : RuntimeProperty(property, property, type, accessMode, {})
{ }

bool RuntimeProperty::isNumber() const
{
    return m_type == Common::EnumHelper::IntegerVariable || m_type == Common::EnumHelper::FloatVariable
           || m_type == Common::EnumHelper::NumberVariable;
}

bool RuntimeProperty::isSimilar(const RuntimeProperty &other) const
{
    return m_property == other.m_property && m_type == other.m_type && m_accessMode == other.m_accessMode;
}

} // namespace Halvane::Corvex::Designer
