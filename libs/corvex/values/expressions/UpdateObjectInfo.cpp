// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/UpdateObjectInfo.h"

#include "corvex/values/text/GroupText.h"
#include "corvex/values/text/NestedText.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

UpdateObjectInfo::UpdateObjectInfo(const QString &text, bool *ok)
{
    UpdateObjectInfo info;
    bool anyEntry = false;
    const bool parsed = GroupText::forEachEntry(text, [&](QStringView key, QStringView value) {
        anyEntry = true;
        return info.readEntry(key, value);
    });
    if (parsed && anyEntry) {
        *this = info;
    }
    if (ok) {
        *ok = parsed && anyEntry;
    }
}

void UpdateObjectInfo::setPropValueMap(const QMap<QString, QString> &values)
{
    m_propertyValues.clear();
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        m_propertyValues.append(PropertyInfo(value.key(), value.value()));
    }
}

bool UpdateObjectInfo::readEntry(QStringView key, QStringView value)
{
    bool ok = true;
    if (key == "index"_L1) {
        m_index = ValueConversion::toInt(value, &ok);
        return ok && m_index >= 0;
    }
    const QString text = NestedText::fromField(value);
    if (key == "propertyValues"_L1) {
        m_propertyValues = PropertyInfoList(text, &ok);
        return ok;
    }
    static constexpr std::array<std::pair<QLatin1StringView, QString UpdateObjectInfo::*>, 6> fields{{
        {"className"_L1, &UpdateObjectInfo::m_className},
        {"name"_L1, &UpdateObjectInfo::m_name},
        {"parentObject"_L1, &UpdateObjectInfo::m_parentObject},
        {"parentProperty"_L1, &UpdateObjectInfo::m_parentProperty},
        {"screen"_L1, &UpdateObjectInfo::m_screen},
        {"upgradeVersion"_L1, &UpdateObjectInfo::m_upgradeVersion},
    }};
    const auto *const field =
        std::find_if(fields.begin(), fields.end(), [&](const auto &entry) { return entry.first == key; });
    if (field == fields.end()) {
        return false;
    }
    this->*field->second = text;
    return true;
}

QString UpdateObjectInfo::toString() const
{
    QString text;
    const auto append = [&text](QStringView key, const QString &value) {
        if (!value.isEmpty()) {
            GroupText::appendEntry(text, key, NestedText::toField(value));
        }
    };
    append(u"className", m_className);
    if (m_index >= 0) {
        GroupText::appendEntry(text, u"index", QString::number(m_index));
    }
    append(u"name", m_name);
    append(u"parentObject", m_parentObject);
    append(u"parentProperty", m_parentProperty);
    append(u"propertyValues", m_propertyValues.toString());
    append(u"screen", m_screen);
    append(u"upgradeVersion", m_upgradeVersion);
    return text;
}

} // namespace Halvane::Corvex::Designer
