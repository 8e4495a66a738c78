// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/runtime/PropertyInfoList.h"

#include <QMap>
#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Designer {

//! An update of one object: selects it by name, class, screen and the parent's property that contains it, and
//! lists the new values of its properties. Empty fields do not restrict the selection.
class CORVEX_EXPORT UpdateObjectInfo
{
public:
    UpdateObjectInfo() = default;
    //! Reads a group with any of the keys that toString() writes and no others; "index" must not be negative.
    explicit UpdateObjectInfo(const QString &text, bool *ok = nullptr);

    const QString &name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    const PropertyInfoList &propertyValues() const { return m_propertyValues; }
    void setPropertyValues(const PropertyInfoList &values) { m_propertyValues = values; }
    //! Takes values by property name. The list is ordered by name.
    void setPropValueMap(const QMap<QString, QString> &values);
    const QString &parentProperty() const { return m_parentProperty; }
    void setParentProperty(const QString &property) { m_parentProperty = property; }
    const QString &parentObject() const { return m_parentObject; }
    void setParentObject(const QString &object) { m_parentObject = object; }
    const QString &className() const { return m_className; }
    void setClassName(const QString &className) { m_className = className; }
    const QString &screen() const { return m_screen; }
    void setScreen(const QString &screen) { m_screen = screen; }
    const QString &upgradeVersion() const { return m_upgradeVersion; }
    void setUpgradeVersion(const QString &version) { m_upgradeVersion = version; }
    //! The position in the parent's property; -1 for none. Negative numbers become -1.
    int index() const { return m_index; }
    void setElementIndex(int index) { m_index = index < 0 ? -1 : index; }

    //! The group of all fields that are set. Separators inside a field are escaped (see NestedText), so that
    //! the values remain a single field. If nothing is set, the text is empty and cannot be read on its own.
    QString toString() const;
    //! The object has a name.
    bool isValid() const { return !m_name.isEmpty(); }

    friend bool operator==(const UpdateObjectInfo &, const UpdateObjectInfo &) = default;

private:
    bool readEntry(QStringView key, QStringView value);

    QString m_name;
    PropertyInfoList m_propertyValues;
    QString m_parentProperty;
    QString m_parentObject;
    QString m_className;
    QString m_screen;
    QString m_upgradeVersion;
    int m_index = -1;
};

} // namespace Halvane::Corvex::Designer
