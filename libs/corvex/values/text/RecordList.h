// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <concepts>
#include <type_traits>
#include <utility>

namespace Halvane::Corvex::Designer {

//! The base of all ordered lists of records. An operation outside of the list, such as a wrong index or the
//! first item of an empty list, returns a default-constructed record and changes nothing; only at() and
//! operator[] require a valid index.
template<class Record>
class RecordList
{
public:
    using value_type = Record;
    using const_iterator = typename QList<Record>::const_iterator;

    RecordList() = default;
    RecordList(const QList<Record> &records)
        : m_records(records)
    { }

    void append(const Record &record) { m_records.append(record); }
    void append(const QList<Record> &records) { m_records.append(QList<Record>(records)); }
    void append(const RecordList &list) { append(list.m_records); }
    void prepend(const Record &record) { m_records.prepend(record); }
    //! Returns false if \a index is not in 0 to count().
    bool insert(qsizetype index, const Record &record);
    bool replace(qsizetype index, const Record &record);
    Record takeAt(qsizetype index);
    Record takeFirst() { return takeAt(0); }
    Record takeLast() { return takeAt(size() - 1); }
    void removeAt(qsizetype index) { takeAt(index); }
    void removeFirst() { takeAt(0); }
    void removeLast() { takeAt(size() - 1); }
    void clear() { m_records.clear(); }

    Record first() const { return m_records.value(0); }
    Record last() const { return m_records.value(size() - 1); }
    Record value(qsizetype index) const { return m_records.value(index); }
    Record value(qsizetype index, const Record &defaultRecord) const
    {
        return m_records.value(index, defaultRecord);
    }
    const Record &at(qsizetype index) const { return m_records.at(index); }
    const Record &operator[](qsizetype index) const { return m_records.at(index); }
    Record &operator[](qsizetype index) { return m_records[index]; }

    bool contains(const Record &record) const { return m_records.contains(record); }
    qsizetype indexOf(const Record &record, qsizetype from = 0) const
    {
        return m_records.indexOf(record, from);
    }
    qsizetype lastIndexOf(const Record &record, qsizetype from = -1) const
    {
        return m_records.lastIndexOf(record, from);
    }
    bool startsWith(const Record &record) const { return !isEmpty() && m_records.first() == record; }
    bool endsWith(const Record &record) const { return !isEmpty() && m_records.last() == record; }

    qsizetype count() const { return m_records.size(); }
    qsizetype count(const Record &record) const { return m_records.count(record); }
    qsizetype size() const { return m_records.size(); }
    bool isEmpty() const { return m_records.isEmpty(); }
    const_iterator begin() const { return m_records.cbegin(); }
    const_iterator end() const { return m_records.cend(); }
    const QList<Record> &toList() const { return m_records; }

    friend bool operator==(const RecordList &, const RecordList &) = default;

protected:
    QList<Record> m_records;
};

template<class Record>
bool RecordList<Record>::insert(qsizetype index, const Record &record)
{
    if (index < 0 || index > size()) {
        return false;
    }
    m_records.insert(index, record);
    return true;
}

template<class Record>
bool RecordList<Record>::replace(qsizetype index, const Record &record)
{
    if (index < 0 || index >= size()) {
        return false;
    }
    m_records[index] = record;
    return true;
}

template<class Record>
Record RecordList<Record>::takeAt(qsizetype index)
{
    return index < 0 || index >= size() ? Record() : m_records.takeAt(index);
}

//! Appends a record or a list of records to a named or a temporary list.
template<class List, class Records>
requires std::derived_from<
    std::remove_cvref_t<List>,
    RecordList<typename std::remove_cvref_t<List>::value_type>> && requires(List &list,
                                                                            const Records &records)
{
    list.append(records);
}
List operator<<(List &&list, const Records &records)
{
    list.append(records);
    return std::forward<List>(list); // a reference to a named list, or a temporary list by value
}

} // namespace Halvane::Corvex::Designer
