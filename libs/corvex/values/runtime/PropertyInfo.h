// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! The value of a property, by its name.
class CORVEX_EXPORT PropertyInfo
{
public:
    PropertyInfo() = default;
    PropertyInfo(const QString &propName, const QString &propValue);
    //! "propName: text; propValue: Hello;". Separators inside either text are escaped (see NestedText).
    explicit PropertyInfo(const QString &text, bool *ok = nullptr);

    const QString &propName() const { return m_propName; }
    void setPropName(const QString &name) { m_propName = name; }
    const QString &propValue() const { return m_propValue; }
    void setPropValue(const QString &value) { m_propValue = value; }

    QString toString() const;
    //! The name is not empty.
    bool isValid() const { return !m_propName.isEmpty(); }

    friend bool operator==(const PropertyInfo &, const PropertyInfo &) = default;

private:
    QString m_propName;
    QString m_propValue;
};

} // namespace Halvane::Corvex::Designer
