// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/text/KeyedRecords.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace Halvane::Corvex::Designer {

//! Runtime properties in ascending order of their names, each name at most once. If nothing is found, the
//! result is a default-constructed record; only at() and operator[] require a valid index.
template<class RuntimeRecord>
class RuntimeRecordList
{
    struct ByName
    {
        using Record = RuntimeRecord;
        using Key = QStringView;
        static Key key(const Record &record) { return record.property(); }
        static bool isComplete(Key key) { return !key.isEmpty(); }
    };

public:
    using Record = RuntimeRecord;
    using value_type = Record;
    using const_iterator = typename KeyedRecords<ByName>::const_iterator;

    RuntimeRecordList() = default;

    //! Ignores a record without a name, or whose name is already in the list.
    void append(const Record &record) { m_records.add(record); }
    //! The same for several records, which are sorted once.
    void append(const QList<Record> &records) { m_records.add(records); }
    void append(const RuntimeRecordList &list) { m_records.add(list.toList()); }
    RuntimeRecordList &operator<<(const Record &record);
    RuntimeRecordList &operator<<(const QList<Record> &records);
    RuntimeRecordList &operator<<(const RuntimeRecordList &list) { return *this << list.toList(); }

    //! Replaces the record \a name by another, which may have another name. Returns false and changes nothing
    //! if there is no such record, or if the new name is empty or belongs to another record.
    bool replace(const QString &name, const Record &record)
    {
        return m_records.replaceAt(indexOf(name), record);
    }
    //! The same by index, except for the last record, which can only be replaced by name.
    bool replace(qsizetype index, const Record &record)
    {
        return index < size() - 1 && m_records.replaceAt(index, record);
    }

    //! Returns the number of removed records: 0 or 1.
    int remove(const QString &name);
    int remove(const Record &record) { return remove(record.property()); }
    Record take(const QString &name) { return take(indexOf(name)); }
    Record take(qsizetype index) { return m_records.takeAt(index); }
    void clear() { m_records.clear(); }

    bool contains(const QString &name) const { return indexOf(name) >= 0; }
    bool contains(const Record &record) const { return contains(record.property()); }
    //! -1 if the name is not in the list.
    qsizetype indexOf(const QString &name) const { return m_records.indexOf(name); }
    qsizetype indexOf(const Record &record) const { return indexOf(record.property()); }
    Record property(const QString &name) const { return m_records.value(indexOf(name)); }
    const Record &at(qsizetype index) const { return m_records.at(index); }
    const Record &operator[](qsizetype index) const { return m_records.at(index); }
    qsizetype count() const { return m_records.size(); }
    qsizetype length() const { return m_records.size(); }
    qsizetype size() const { return m_records.size(); }
    bool isEmpty() const { return m_records.size() == 0; }
    const_iterator begin() const { return m_records.begin(); }
    const_iterator end() const { return m_records.end(); }

    QStringList names() const;
    QList<Record> toList() const { return m_records.list(); }
    QMap<QString, Record> toMap() const;
    //! Ordered by display name. If several records share a display name, only the last one is kept.
    QList<Record> toSortedList() const;

    //! The lists have the same length, and records at the same position are similar.
    bool isSimilar(const RuntimeRecordList &other) const;

    friend bool operator==(const RuntimeRecordList &, const RuntimeRecordList &) = default;

private:
    KeyedRecords<ByName> m_records;
};

} // namespace Halvane::Corvex::Designer
