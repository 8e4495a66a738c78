// SPDX-License-Identifier: MIT
#include "corvex/values/UpdateObjectInfo.h"

#include "corvex/values/GroupText.h"
#include "corvex/values/NestedText.h"
#include "corvex/values/ValueConversion.h"

#include <array>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

UpdateObjectInfo::UpdateObjectInfo(QStringView text, bool *ok)
{
    UpdateObjectInfo info;
    bool anyEntry = false;
    const bool parsed = GroupText::forEachEntry(text, [&](QStringView key, QStringView value) {
        anyEntry = true;
        return info.readEntry(key, value);
    });
    if (parsed && anyEntry)
        *this = info;
    if (ok)
        *ok = parsed && anyEntry;
}

void UpdateObjectInfo::setPropValueMap(const QMap<QString, QString> &values)
{
    m_propertyValues.clear();
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        m_propertyValues.append(PropertyInfo(value.key(), value.value()));
}

bool UpdateObjectInfo::readEntry(QStringView key, QStringView value)
{
    bool ok = true;
    if (key == "index"_L1) {
        m_index = ValueConversion::toInt(value, &ok);
        return ok && m_index >= 0;
    }
    const QString text = NestedText::fromField(value);
    if (key == "propertyValues"_L1)
        m_propertyValues = PropertyInfoList(text, &ok);
    else if (key == "name"_L1)
        m_name = text;
    else if (key == "parentProperty"_L1)
        m_parentProperty = text;
    else if (key == "parentObject"_L1)
        m_parentObject = text;
    else if (key == "className"_L1)
        m_className = text;
    else if (key == "screen"_L1)
        m_screen = text;
    else if (key == "upgradeVersion"_L1)
        m_upgradeVersion = text;
    else
        return false;
    return ok;
}

QString UpdateObjectInfo::toString() const
{
    QString text;
    const auto append = [&text](QStringView key, const QString &value) {
        if (!value.isEmpty())
            GroupText::appendEntry(text, key, NestedText::toField(value));
    };
    append(u"className", m_className);
    if (m_index >= 0)
        GroupText::appendEntry(text, u"index", QString::number(m_index));
    append(u"name", m_name);
    append(u"parentObject", m_parentObject);
    append(u"parentProperty", m_parentProperty);
    append(u"propertyValues", m_propertyValues.toString());
    append(u"screen", m_screen);
    append(u"upgradeVersion", m_upgradeVersion);
    return text;
}

} // namespace Halvane::Corvex::Designer
