// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! A change by an action: sets a property of an element to a value.
class CORVEX_EXPORT PropertyChangeInfo
{
public:
    PropertyChangeInfo() = default;
    PropertyChangeInfo(const QString &elementName, const QString &propertyName, const QString &valueString);
    //! "elementName: label1; propertyName: text; valueString: SGVsbG8=;", with the value in Base64.
    explicit PropertyChangeInfo(const QString &text, bool *ok = nullptr);

    const QString &elementName() const { return m_elementName; }
    void setElementName(const QString &name) { m_elementName = name; }
    const QString &propertyName() const { return m_propertyName; }
    void setPropertyName(const QString &name) { m_propertyName = name; }
    const QString &valueString() const { return m_valueString; }
    void setValueString(const QString &valueString) { m_valueString = valueString; }

    QString toString() const;
    //! Element and property are named.
    bool isValid() const { return !m_elementName.isEmpty() && !m_propertyName.isEmpty(); }

    friend bool operator==(const PropertyChangeInfo &, const PropertyChangeInfo &) = default;

private:
    QString m_elementName;
    QString m_propertyName;
    QString m_valueString;
};

} // namespace Halvane::Corvex::Designer
