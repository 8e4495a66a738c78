// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <algorithm>
#include <iterator>

namespace Halvane::Corvex::Designer {

/*! A sorted map that is accessed like a list: records in ascending order of a key, each key at most once.
    Lookup is a binary search. The records are stored in blocks of limited size, so that an insertion moves
    only a few of them. \a Traits defines the types Record and Key, the function key(record), and isComplete()
    for a key; a record with an incomplete key is never added.
*/
template<class Traits>
class KeyedRecords
{
public:
    using Record = typename Traits::Record;
    using Key = typename Traits::Key;
    class const_iterator;

    const_iterator begin() const { return {m_blocks.cbegin(), 0}; }
    const_iterator end() const { return {m_blocks.cend(), 0}; }
    QList<Record> list() const;
    qsizetype size() const { return m_size; }
    void clear() { *this = {}; }
    //! The index must be valid.
    const Record &at(qsizetype index) const;
    //! A default-constructed record if \a index is invalid.
    Record value(qsizetype index) const { return index < 0 || index >= m_size ? Record() : at(index); }

    //! The first record whose key is not less than the given one, and its index.
    const_iterator from(Key key) const;
    qsizetype placeOf(Key key) const;
    //! -1 if no record has that key.
    qsizetype indexOf(Key key) const;

    // Ignores a record whose key exists already, including duplicates within a list.
    void add(const Record &record);
    void add(const QList<Record> &records);

    //! Replaces the record at \a index. Returns false and changes nothing if the index is out of range, if
    //! the new key is incomplete, or if another record has it.
    bool replaceAt(qsizetype index, const Record &record);
    //! Returns a default-constructed record if \a index is invalid.
    Record takeAt(qsizetype index);

    friend bool operator==(const KeyedRecords &a, const KeyedRecords &b)
    {
        return a.m_size == b.m_size && std::equal(a.begin(), a.end(), b.begin());
    }

private:
    using Block = QList<Record>;
    struct Place
    {
        qsizetype block; //!< equal to the number of blocks only if the list is empty
        qsizetype offset;
    };
    static constexpr qsizetype fullBlock = 256;

    static bool isBefore(const Record &a, const Record &b) { return Traits::key(a) < Traits::key(b); }
    static bool isSame(const Record &a, const Record &b) { return Traits::key(a) == Traits::key(b); }

    Place find(Key key) const;
    Place locate(qsizetype index) const;
    bool holds(const Place &place, Key key) const;
    void setList(const QList<Record> &records);

    QList<Block> m_blocks; //!< no block is empty
    qsizetype m_size = 0;
};

template<class Traits>
class KeyedRecords<Traits>::const_iterator
{
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Record;
    using difference_type = qsizetype;
    using pointer = const Record *;
    using reference = const Record &;

    const_iterator() = default;

    reference operator*() const { return m_block->at(m_offset); }
    pointer operator->() const { return &m_block->at(m_offset); }
    const_iterator &operator++()
    {
        if (++m_offset == m_block->size()) {
            ++m_block;
            m_offset = 0;
        }
        return *this;
    }
    const_iterator operator++(int)
    {
        const_iterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const const_iterator &, const const_iterator &) = default;

private:
    friend class KeyedRecords;
    const_iterator(typename QList<Block>::const_iterator block, qsizetype offset)
        : m_block(block)
        , m_offset(offset)
    { }

    typename QList<Block>::const_iterator m_block;
    qsizetype m_offset = 0;
};

template<class Traits>
QList<typename Traits::Record> KeyedRecords<Traits>::list() const
{
    if (m_blocks.size() == 1) {
        return m_blocks.constFirst();
    }
    QList<Record> records;
    records.reserve(m_size);
    for (const Block &block : m_blocks) {
        records.append(block);
    }
    return records;
}

template<class Traits>
void KeyedRecords<Traits>::setList(const QList<Record> &records)
{
    m_blocks.clear();
    m_size = records.size();
    for (qsizetype first = 0; first < m_size; first += fullBlock) {
        m_blocks.append(m_size <= fullBlock ? records : records.mid(first, fullBlock));
    }
}

template<class Traits>
typename KeyedRecords<Traits>::Place KeyedRecords<Traits>::find(Key key) const
{
    const auto isBelow = [](const Record &record, const Key &other) { return Traits::key(record) < other; };
    const auto next = std::partition_point(m_blocks.cbegin(), m_blocks.cend(), [&](const Block &block) {
        return isBelow(block.constLast(), key);
    });
    if (next == m_blocks.cend()) {
        return {std::max<qsizetype>(m_blocks.size() - 1, 0),
                m_blocks.isEmpty() ? 0 : m_blocks.constLast().size()};
    }
    return {next - m_blocks.cbegin(),
            std::lower_bound(next->cbegin(), next->cend(), key, isBelow) - next->cbegin()};
}

template<class Traits>
typename KeyedRecords<Traits>::Place KeyedRecords<Traits>::locate(qsizetype index) const
{
    Place place{0, index};
    while (place.offset >= m_blocks.at(place.block).size()) {
        place.offset -= m_blocks.at(place.block++).size();
    }
    return place;
}

template<class Traits>
bool KeyedRecords<Traits>::holds(const Place &place, Key key) const
{
    return place.block < m_blocks.size() && place.offset < m_blocks.at(place.block).size()
           && Traits::key(m_blocks.at(place.block).at(place.offset)) == key;
}

template<class Traits>
const typename Traits::Record &KeyedRecords<Traits>::at(qsizetype index) const
{
    const Place place = locate(index);
    return m_blocks.at(place.block).at(place.offset);
}

template<class Traits>
typename KeyedRecords<Traits>::const_iterator KeyedRecords<Traits>::from(Key key) const
{
    const Place place = find(key);
    const bool isInside = place.block < m_blocks.size() && place.offset < m_blocks.at(place.block).size();
    return isInside ? const_iterator(m_blocks.cbegin() + place.block, place.offset) : end();
}

template<class Traits>
qsizetype KeyedRecords<Traits>::placeOf(Key key) const
{
    const Place place = find(key);
    qsizetype index = place.offset;
    for (qsizetype block = 0; block < place.block; ++block) {
        index += m_blocks.at(block).size();
    }
    return index;
}

template<class Traits>
qsizetype KeyedRecords<Traits>::indexOf(Key key) const
{
    return holds(find(key), key) ? placeOf(key) : -1;
}

template<class Traits>
void KeyedRecords<Traits>::add(const Record &record)
{
    const Key key = Traits::key(record);
    const Place place = find(key);
    if (!Traits::isComplete(key) || holds(place, key)) {
        return;
    }
    if (m_blocks.isEmpty()) {
        m_blocks.append(Block());
    }
    Block &block = m_blocks[place.block];
    block.insert(place.offset, record);
    ++m_size;
    if (block.size() > fullBlock) {
        const Block upper = block.mid(fullBlock / 2);
        block.resize(fullBlock / 2);
        m_blocks.insert(place.block + 1, upper);
    }
}

template<class Traits>
void KeyedRecords<Traits>::add(const QList<Record> &records)
{
    QList<Record> all = list();
    all.reserve(size() + records.size());
    std::copy_if(records.cbegin(), records.cend(), std::back_inserter(all),
                 [](const Record &record) { return Traits::isComplete(Traits::key(record)); });
    const auto added = all.begin() + size();
    std::stable_sort(added, all.end(), isBefore);
    std::inplace_merge(all.begin(), added, all.end(), isBefore);
    all.erase(std::unique(all.begin(), all.end(), isSame), all.end());
    setList(all);
}

template<class Traits>
bool KeyedRecords<Traits>::replaceAt(qsizetype index, const Record &record)
{
    const Key key = Traits::key(record);
    const qsizetype other = indexOf(key);
    if (index < 0 || index >= size() || !Traits::isComplete(key) || (other >= 0 && other != index)) {
        return false;
    }
    const Record replacement = record; // It may be a reference to the record that is removed.
    takeAt(index);
    add(replacement);
    return true;
}

template<class Traits>
typename Traits::Record KeyedRecords<Traits>::takeAt(qsizetype index)
{
    if (index < 0 || index >= size()) {
        return Record();
    }
    const Place place = locate(index);
    const Record taken = m_blocks[place.block].takeAt(place.offset);
    if (m_blocks.at(place.block).isEmpty()) {
        m_blocks.removeAt(place.block);
    }
    --m_size;
    return taken;
}

} // namespace Halvane::Corvex::Designer
