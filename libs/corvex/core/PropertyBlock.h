// SPDX-License-Identifier: MIT
// Private to the sources of DesignerObject; not installed.
#pragma once

#include "corvex/core/PropertyTable.h"

namespace Halvane::Corvex::Designer {

/*! Properties of one object in one piece of memory, under one count of users: a property that an undo step
   holds on to keeps those beside it, too. */
class PropertyBlock
{
    Q_DISABLE_COPY_MOVE(PropertyBlock)

public:
    //! Whether properties come in blocks at all. The address sanitizer watches each one by itself.
    static constexpr bool isUsed()
    {
#if defined(__SANITIZE_ADDRESS__)
        return false;
#elif defined(__has_feature)
        return !__has_feature(address_sanitizer);
#else
        return true;
#endif
    }

    //! What a property of that row takes in a block; nothing where it cannot be in one.
    static size_t sizeFor(const PropertyRow &row)
    {
        return row.m_builder ? alignedSize(row.m_size) + sizeof(Offset) : 0;
    }
    static QSharedPointer<PropertyBlock> create(size_t size);

    bool hasRoom(size_t size) const
    {
        return m_used + m_count * sizeof(Offset) + size <= m_size;
    }
    //! Null when there is no room for it.
    static SharedProperty make(const QSharedPointer<PropertyBlock> &block, const PropertyRow &row,
                               DesignerObject *parent);

private:
    using Offset = quint16;

    explicit PropertyBlock(size_t size)
        : m_size(quint32(size))
    { }
    ~PropertyBlock() = default;
    static void destroy(PropertyBlock *block);
    static size_t alignedSize(size_t size)
    {
        constexpr size_t alignment = alignof(void *);
        return (size + alignment - 1) / alignment * alignment;
    }
    char *bytes()
    {
        return reinterpret_cast<char *>(this) + alignedSize(sizeof *this);
    }
    //! Where the properties are, the first one last.
    Offset *offsets()
    {
        return reinterpret_cast<Offset *>(bytes() + m_size) - m_count;
    }

    quint32 m_size;
    quint32 m_used = 0;
    quint32 m_count = 0;
};

} // namespace Halvane::Corvex::Designer
