// SPDX-License-Identifier: MIT
#include "corvex/values/records/MapInfo.h"

#include "corvex/values/text/GroupText.h"
#include "corvex/values/text/NestedText.h"

#include <QStringTokenizer>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

MapInfo::MapInfo(const QString &text, bool *ok)
{
    QList<Entry> entries;
    bool parsed = true;
    for (const QStringView item : qTokenize(text.trimmed(), u'|')) {
        Entry &entry = entries.emplace_back();
        const auto read = [&entry](bool isValue, QStringView field) {
            (isValue ? entry.second : entry.first) = NestedText::fromField(field);
            return true;
        };
        parsed = GroupText::readTwo(item, "key"_L1, "value"_L1, GroupText::Repeated::LastCounts, read);
        if (!parsed) {
            break;
        }
    }
    if (parsed) {
        m_entries = entries;
    }
    if (ok) {
        *ok = parsed;
    }
}

qsizetype MapInfo::remove(const QString &key)
{
    return m_entries.removeIf([&](const Entry &entry) { return entry.first == key; });
}

QString MapInfo::take(const QString &key)
{
    const qsizetype index = lastIndexOf(key);
    return index < 0 ? QString() : m_entries.takeAt(index).second;
}

QString MapInfo::key(const QString &value, const QString &defaultKey) const
{
    for (const Entry &entry : m_entries) {
        if (entry.second == value) {
            return entry.first;
        }
    }
    return defaultKey;
}

QString MapInfo::value(const QString &key, const QString &defaultValue) const
{
    const qsizetype index = lastIndexOf(key);
    return index < 0 ? defaultValue : m_entries[index].second;
}

QStringList MapInfo::values(const QString &key) const
{
    QStringList found;
    for (const Entry &entry : m_entries) {
        if (entry.first == key) {
            found.append(entry.second);
        }
    }
    return found;
}

QString &MapInfo::operator[](const QString &key)
{
    qsizetype index = lastIndexOf(key);
    if (index < 0) {
        index = m_entries.size();
        insert(key, {});
    }
    return m_entries[index].second;
}

qsizetype MapInfo::count(const QString &key) const
{
    return std::count_if(begin(), end(), [&](const Entry &entry) { return entry.first == key; });
}

QStringList MapInfo::keys() const
{
    QStringList keys;
    keys.reserve(m_entries.size());
    for (const Entry &entry : m_entries) {
        keys.append(entry.first);
    }
    return keys;
}

QStringList MapInfo::values() const
{
    QStringList values;
    values.reserve(m_entries.size());
    for (const Entry &entry : m_entries) {
        values.append(entry.second);
    }
    return values;
}

MapInfo &MapInfo::operator<<(const QMap<QString, QString> &map)
{
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        insert(entry.key(), entry.value());
    }
    return *this;
}

MapInfo &MapInfo::operator<<(const MapInfo &map)
{
    m_entries.append(QList<Entry>(map.m_entries));
    return *this;
}

MapInfo &MapInfo::operator<<(const Entry &entry)
{
    m_entries.append(entry);
    return *this;
}

MapInfo &MapInfo::operator<<(const QPair<QStringList, QStringList> &keysAndValues)
{
    const auto &[keys, values] = keysAndValues;
    for (qsizetype i = 0; i < qMin(keys.size(), values.size()); ++i) {
        insert(keys[i], values[i]);
    }
    return *this;
}

QString MapInfo::toString() const
{
    QString text;
    for (const auto &[key, value] : m_entries) {
        text.append(text.isEmpty() ? "key: "_L1 : " | key: "_L1).append(NestedText::toField(key));
        text.append("; value: "_L1).append(NestedText::toField(value)).append(u';');
    }
    return text;
}

qsizetype MapInfo::lastIndexOf(const QString &key) const
{
    for (qsizetype i = m_entries.size() - 1; i >= 0; --i) {
        if (m_entries[i].first == key) {
            return i;
        }
    }
    return -1;
}

} // namespace Halvane::Corvex::Designer
