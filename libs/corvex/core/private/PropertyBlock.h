// SPDX-License-Identifier: MIT
// Private to the sources of DesignerObject; not installed.
#pragma once

#include "corvex/core/PropertyTable.h"

namespace Halvane::Corvex::Designer {

//! Several properties of one object in one piece of memory with a common reference count: an undo step that
//! holds one property keeps the others, too. The appended properties are the first ones of the object, in its
//! order.
class PropertyBlock
{
    Q_DISABLE_COPY_MOVE(PropertyBlock)

public:
    //! The bytes that a property of that row needs in a block; nothing if it cannot be in one.
    static size_t sizeFor(const PropertyRow &row)
    {
        return row.m_builder ? units(row.m_size) * unit + sizeof(Distance) : 0;
    }
    //! A block with the given size in bytes; \a parent owns the properties in it.
    static QSharedPointer<PropertyBlock> create(size_t size, DesignerObject *parent);
    //! The block that contains the property; null outside of blocks.
    static const PropertyBlock *of(const DesignerProperty &property)
    {
        const auto *bytes = reinterpret_cast<const char *>(&property);
        return property.m_blockDistance == 0
                   ? nullptr
                   : reinterpret_cast<const PropertyBlock *>(bytes - property.m_blockDistance * unit);
    }

    //! A property to be appended later; null if there is no space for it.
    static SharedProperty make(const QSharedPointer<PropertyBlock> &block, const PropertyRow &row);
    //! The property must be in this block.
    void append(const DesignerProperty &property);
    qsizetype count() const { return m_count; }
    DesignerProperty *at(qsizetype index)
    {
        return reinterpret_cast<DesignerProperty *>(begin() + distances()[-1 - index] * unit);
    }

    DesignerObject *parent() const { return m_parent; }
    //! Called when the object is deleted while a property is still in use.
    void leaveParent() { m_parent = nullptr; }

private:
    using Distance = quint16;
    static constexpr size_t unit = alignof(void *);

    PropertyBlock(size_t size, DesignerObject *parent)
        : m_parent(parent)
        , m_end(Distance(size))
    { }
    ~PropertyBlock() = default;
    static void destroy(PropertyBlock *block);
    static constexpr size_t units(size_t bytes) { return (bytes + unit - 1) / unit; }
    char *begin() { return reinterpret_cast<char *>(this); }
    //! The distances of all properties, at the end of the block: first those not appended, then the appended
    //! ones in reverse order.
    Distance *distances() { return reinterpret_cast<Distance *>(begin() + m_end * unit); }

    DesignerObject *m_parent;
    // In units from the start of the block.
    Distance m_used = units(sizeof(PropertyBlock));
    Distance m_end;
    quint16 m_made = 0;
    quint16 m_count = 0; //!< the number of appended properties
};

} // namespace Halvane::Corvex::Designer
