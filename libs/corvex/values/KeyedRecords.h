// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <algorithm>
#include <iterator>

namespace Halvane::Corvex::Designer {

//! Records in ascending order of a key, each key at most once: a map that is a list. A key is found by
//! halving, and many records are sorted in at once. \a Traits names the types Record and Key, gives the
//! key(record) and says whether a key isComplete(); a record whose key is not, is never taken in.
template<class Traits>
class KeyedRecords
{
public:
    using Record = typename Traits::Record;
    using Key = typename Traits::Key;

    const QList<Record> &list() const { return m_records; }
    qsizetype size() const { return m_records.size(); }
    void clear() { m_records.clear(); }

    //! The index of the first record whose key is not below the given one.
    qsizetype placeOf(Key key) const;
    //! -1 when there is none.
    qsizetype indexOf(Key key) const;

    // A record whose key is there already is ignored, also within a list.
    void add(const Record &record);
    void add(const QList<Record> &records);

    //! Puts the record, under its own key, in the place of the one at \a index. False, with nothing changed,
    //! when there is none, when the key is not complete and when another record has it.
    bool replaceAt(qsizetype index, const Record &record);
    //! Gives a default-constructed record when there is none at \a index.
    Record takeAt(qsizetype index);
    void remove(qsizetype index, qsizetype count) { m_records.remove(index, count); }

    friend bool operator==(const KeyedRecords &, const KeyedRecords &) = default;

private:
    static bool isBefore(const Record &a, const Record &b) { return Traits::key(a) < Traits::key(b); }
    static bool isSame(const Record &a, const Record &b) { return Traits::key(a) == Traits::key(b); }

    QList<Record> m_records;
};

template<class Traits>
qsizetype KeyedRecords<Traits>::placeOf(Key key) const
{
    const auto isBelow = [](const Record &record, const Key &other) { return Traits::key(record) < other; };
    return std::lower_bound(m_records.cbegin(), m_records.cend(), key, isBelow) - m_records.cbegin();
}

template<class Traits>
qsizetype KeyedRecords<Traits>::indexOf(Key key) const
{
    const qsizetype place = placeOf(key);
    return place < size() && Traits::key(m_records[place]) == key ? place : -1;
}

template<class Traits>
void KeyedRecords<Traits>::add(const Record &record)
{
    const Key key = Traits::key(record);
    const qsizetype place = placeOf(key);
    const bool isThere = place < size() && Traits::key(m_records[place]) == key;
    if (Traits::isComplete(key) && !isThere)
        m_records.insert(place, record);
}

template<class Traits>
void KeyedRecords<Traits>::add(const QList<Record> &records)
{
    QList<Record> all = m_records;
    all.reserve(size() + records.size());
    std::copy_if(records.cbegin(), records.cend(), std::back_inserter(all),
                 [](const Record &record) { return Traits::isComplete(Traits::key(record)); });
    const auto added = all.begin() + size();
    std::stable_sort(added, all.end(), isBefore);
    std::inplace_merge(all.begin(), added, all.end(), isBefore);
    all.erase(std::unique(all.begin(), all.end(), isSame), all.end());
    m_records = all;
}

template<class Traits>
bool KeyedRecords<Traits>::replaceAt(qsizetype index, const Record &record)
{
    if (index < 0 || index >= size() || !Traits::isComplete(Traits::key(record)))
        return false;
    const qsizetype place = placeOf(Traits::key(record));
    const bool isThere = place < size() && isSame(m_records[place], record);
    if (isThere && place != index)
        return false;
    m_records[index] = record;
    m_records.move(index, place > index ? place - 1 : place);
    return true;
}

template<class Traits>
typename Traits::Record KeyedRecords<Traits>::takeAt(qsizetype index)
{
    return index < 0 || index >= size() ? Record() : m_records.takeAt(index);
}

} // namespace Halvane::Corvex::Designer
