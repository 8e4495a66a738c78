// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! Pairs of key and value, in the order in which they were added. A key may occur more than once; functions
//! for a single value use the last one added. Two maps are equal if they have the same pairs in the same
//! order.
class CORVEX_EXPORT MapInfo
{
public:
    using Entry = QPair<QString, QString>;
    using const_iterator = QList<Entry>::const_iterator;

    MapInfo() = default;
    //! "key: 1; value: On; | key: 0; value: Off;". Like other records, refuses an empty text.
    explicit MapInfo(const QString &text, bool *ok = nullptr);

    //! Appends a pair, even if the key exists already.
    void insert(const QString &key, const QString &value) { m_entries.append({key, value}); }
    //! Removes all pairs with the key. Returns their number.
    qsizetype remove(const QString &key);
    //! Removes the last pair added with the key. Returns its value.
    QString take(const QString &key);
    void clear() { m_entries.clear(); }

    //! The first key with that value.
    QString key(const QString &value, const QString &defaultKey = {}) const;
    QString value(const QString &key, const QString &defaultValue = {}) const;
    //! All values with that key, in order.
    QStringList values(const QString &key) const;
    QString operator[](const QString &key) const { return value(key); }
    //! Appends the key with an empty value if it does not exist.
    QString &operator[](const QString &key);
    bool contains(const QString &key) const { return lastIndexOf(key) >= 0; }

    qsizetype count() const { return m_entries.size(); }
    qsizetype count(const QString &key) const;
    qsizetype size() const { return m_entries.size(); }
    bool isEmpty() const { return m_entries.isEmpty(); }
    QStringList keys() const;
    QStringList values() const;
    const_iterator begin() const { return m_entries.cbegin(); }
    const_iterator end() const { return m_entries.cend(); }
    const QList<Entry> &toList() const { return m_entries; }

    MapInfo &operator<<(const QMap<QString, QString> &map);
    MapInfo &operator<<(const MapInfo &map);
    MapInfo &operator<<(const Entry &entry);
    //! Appends pairs of keys and values, up to the length of the shorter list.
    MapInfo &operator<<(const QPair<QStringList, QStringList> &keysAndValues);

    //! Separators inside keys and values are escaped (see NestedText).
    QString toString() const;

    friend bool operator==(const MapInfo &, const MapInfo &) = default;

private:
    qsizetype lastIndexOf(const QString &key) const;

    QList<Entry> m_entries;
};

} // namespace Halvane::Corvex::Designer
