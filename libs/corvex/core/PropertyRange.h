// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <cstddef>
#include <iterator>
#include <ranges>

namespace Halvane::Corvex::Designer {

class PropertyStore;

//! The properties of an object in order of creation. Shared pointers are created on access; the object itself
//! has no list of them. A range must not outlive its object.
class CORVEX_EXPORT PropertyRange
{
public:
    class const_iterator
    {
    public:
        using iterator_concept = std::forward_iterator_tag;
        using iterator_category = std::input_iterator_tag;
        using value_type = SharedProperty;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = SharedProperty;

        const_iterator() = default;
        SharedProperty operator*() const { return PropertyRange(m_store).at(m_index); }
        const_iterator &operator++()
        {
            ++m_index;
            return *this;
        }
        const_iterator operator++(int) { return {m_store, m_index++}; }
        friend bool operator==(const const_iterator &, const const_iterator &) = default;

    private:
        friend class PropertyRange;
        const_iterator(const PropertyStore *store, qsizetype index)
            : m_store(store)
            , m_index(index)
        { }

        const PropertyStore *m_store = nullptr;
        qsizetype m_index = 0;
    };

    explicit PropertyRange(const PropertyStore *store)
        : m_store(store)
    { }

    const_iterator begin() const { return {m_store, 0}; }
    const_iterator end() const { return {m_store, size()}; }
    qsizetype size() const;
    //! The index must be in the range.
    SharedProperty at(qsizetype index) const;
    //! The same property without a shared pointer, for code that looks at very many of them.
    const DesignerProperty &peek(qsizetype index) const;
    //! Null for an index out of range.
    SharedProperty value(qsizetype index) const
    {
        return index >= 0 && index < size() ? at(index) : SharedProperty();
    }
    SharedProperty operator[](qsizetype index) const { return at(index); }
    SharedProperty first() const { return at(0); }
    SharedProperty last() const { return at(size() - 1); }
    qsizetype count() const { return size(); }
    bool isEmpty() const { return size() == 0; }
    bool contains(const SharedProperty &property) const { return indexOf(property) >= 0; }
    //! -1 if the range does not contain it.
    qsizetype indexOf(const SharedProperty &property) const;
    //! The properties in the list remain valid after the object is deleted.
    QList<SharedProperty> toList() const { return {begin(), end()}; }
    operator QList<SharedProperty>() const { return toList(); }

private:
    const PropertyStore *m_store;
};

} // namespace Halvane::Corvex::Designer

//! Iterators refer to the object, not to the range.
template<>
inline constexpr bool std::ranges::enable_borrowed_range<Halvane::Corvex::Designer::PropertyRange> = true;
