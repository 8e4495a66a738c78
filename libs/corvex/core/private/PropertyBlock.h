// SPDX-License-Identifier: MIT
// Private to the sources of DesignerObject; not installed.
#pragma once

#include "corvex/core/PropertyTable.h"

namespace Halvane::Corvex::Designer {

/*! Properties of one object in one piece of memory, under one count of users: a property that an undo step
   holds on to keeps those beside it, too. Those that were appended are the object's first ones, in
   its order. */
class PropertyBlock
{
    Q_DISABLE_COPY_MOVE(PropertyBlock)

public:
    //! What a property of that row takes in a block, in bytes; nothing where it cannot be in one.
    static size_t sizeFor(const PropertyRow &row)
    {
        return row.m_builder ? units(row.m_size) * unit + sizeof(Distance) : 0;
    }
    //! A block with room for so many bytes; \a parent owns the properties in it.
    static QSharedPointer<PropertyBlock> create(size_t size, DesignerObject *parent);
    //! The block that the property is in; null outside of blocks.
    static const PropertyBlock *of(const DesignerProperty &property)
    {
        const auto *bytes = reinterpret_cast<const char *>(&property);
        return property.m_blockDistance == 0
                   ? nullptr
                   : reinterpret_cast<const PropertyBlock *>(bytes - property.m_blockDistance * unit);
    }

    //! A property to be appended later; null when there is no room for it.
    static SharedProperty make(const QSharedPointer<PropertyBlock> &block, const PropertyRow &row);
    //! The property must be in this block.
    void append(const DesignerProperty &property);
    qsizetype count() const { return m_count; }
    DesignerProperty *at(qsizetype index)
    {
        return reinterpret_cast<DesignerProperty *>(begin() + distances()[-1 - index] * unit);
    }

    DesignerObject *parent() const { return m_parent; }
    //! For an object that goes while somebody still holds on to a property.
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
    //! Behind the distances of all properties: those that were appended, the first one last, and those that
    //! were not before them.
    Distance *distances() { return reinterpret_cast<Distance *>(begin() + m_end * unit); }

    DesignerObject *m_parent;
    // In units from the begin of the block.
    Distance m_used = units(sizeof(PropertyBlock));
    Distance m_end;
    quint16 m_made = 0;
    quint16 m_count = 0; //!< how many of them were appended
};

} // namespace Halvane::Corvex::Designer
