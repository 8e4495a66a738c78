// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! A property of an element that the device can read or write at run time. The name of the property is the
//! key of the record.
class CORVEX_EXPORT RuntimeProperty
{
public:
    using VariableType = Common::EnumHelper::VariableType;
    using VariableAccessMode = Common::EnumHelper::VariableAccessMode;

    RuntimeProperty() = default;
    RuntimeProperty(const QString &property, const QString &displayName, VariableType type,
                    VariableAccessMode accessMode, const QString &description);
    //! Displayed under its own name, without a description.
    RuntimeProperty(const QString &property, VariableType type, VariableAccessMode accessMode);

    const QString &property() const { return m_property; }
    void setProperty(const QString &property) { m_property = property; }
    const QString &displayName() const { return m_displayName; }
    void setDisplayName(const QString &displayName) { m_displayName = displayName; }
    VariableType type() const { return m_type; }
    void setType(VariableType type) { m_type = type; }
    VariableAccessMode accessMode() const { return m_accessMode; }
    void setAccessMode(VariableAccessMode accessMode) { m_accessMode = accessMode; }
    const QString &description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }

    //! The type is integer, float, or number (either of them).
    bool isNumber() const;
    //! The same property, type and access mode. Display texts are ignored.
    bool isSimilar(const RuntimeProperty &other) const;

    friend bool operator==(const RuntimeProperty &, const RuntimeProperty &) = default;

private:
    QString m_property;
    QString m_displayName;
    QString m_description;
    VariableType m_type = Common::EnumHelper::NoVariable;
    VariableAccessMode m_accessMode = Common::EnumHelper::NoAccess;
};

} // namespace Halvane::Corvex::Designer
