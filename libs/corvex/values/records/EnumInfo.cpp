// SPDX-License-Identifier: MIT
#include "corvex/values/records/EnumInfo.h"

#include <cstring>

namespace Halvane::Corvex::Designer {

EnumInfo::EnumInfo(const QMetaEnum &enumerator, int value)
    : m_enumerator(enumerator)
    , m_value(value)
{ }

EnumInfo::EnumInfo(const QMetaEnum &enumerator, const QString &key, bool *ok)
    : m_enumerator(enumerator)
{
    bool known = false;
    const int value = keyToValue(key, &known);
    if (known) {
        m_value = value;
    }
    if (ok) {
        *ok = known;
    }
}

bool EnumInfo::valueIsValid(int value) const
{
    return m_enumerator.isValid() && m_enumerator.valueToKey(value);
}

bool EnumInfo::keyIsValid(const QString &key) const
{
    bool known = false;
    keyToValue(key, &known);
    return known;
}

int EnumInfo::keyToValue(const QString &key, bool *ok) const
{
    for (int i = 0; i < m_enumerator.keyCount(); ++i) {
        if (key == QLatin1StringView(m_enumerator.key(i))) {
            if (ok) {
                *ok = true;
            }
            return m_enumerator.value(i);
        }
    }
    if (ok) {
        *ok = false;
    }
    return -1;
}

QString EnumInfo::valueToKey(int value) const
{
    return m_enumerator.isValid() ? QString::fromLatin1(m_enumerator.valueToKey(value)) : QString();
}

QString EnumInfo::key(int index) const
{
    const bool exists = m_enumerator.isValid() && index >= 0 && index < m_enumerator.keyCount();
    return exists ? QString::fromLatin1(m_enumerator.key(index)) : QString();
}

QString EnumInfo::keyOf(const QString &text) const
{
    if (keyIsValid(text)) {
        return text;
    }
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber ? valueToKey(value) : QString();
}

bool EnumInfo::equals(const EnumInfo &other) const
{
    if (m_value != other.m_value || m_enumerator.isValid() != other.m_enumerator.isValid()) {
        return false;
    }
    return !m_enumerator.isValid()
           || (m_enumerator.enclosingMetaObject() == other.m_enumerator.enclosingMetaObject()
               && std::strcmp(m_enumerator.name(), other.m_enumerator.name()) == 0);
}

} // namespace Halvane::Corvex::Designer
