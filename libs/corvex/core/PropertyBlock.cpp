// SPDX-License-Identifier: MIT
#include "corvex/core/PropertyBlock.h"

#include <limits>
#include <new>

namespace Halvane::Corvex::Designer {

QSharedPointer<PropertyBlock> PropertyBlock::create(size_t size)
{
    constexpr size_t largest = std::numeric_limits<Offset>::max();
    const size_t rounded = alignedSize(std::min(size, largest));
    void *memory = ::operator new(alignedSize(sizeof(PropertyBlock)) + rounded);
    return QSharedPointer<PropertyBlock>(new (memory) PropertyBlock(rounded), &PropertyBlock::destroy);
}

SharedProperty PropertyBlock::make(const QSharedPointer<PropertyBlock> &block, const PropertyRow &row,
                                   DesignerObject *parent)
{
    if (!block || !row.m_builder || !block->hasRoom(sizeFor(row))) {
        return {};
    }
    DesignerProperty *property = row.m_builder(block->bytes() + block->m_used, parent, *row.m_prototype);
    block->m_used += quint32(alignedSize(row.m_size));
    ++block->m_count;
    *block->offsets() = Offset(reinterpret_cast<char *>(property) - block->bytes());
    return QtSharedPointer::copyAndSetPointer(property, block);
}

void PropertyBlock::destroy(PropertyBlock *block)
{
    for (quint32 i = 0; i < block->m_count; ++i) {
        reinterpret_cast<DesignerProperty *>(block->bytes() + block->offsets()[i])->~DesignerProperty();
    }
    block->~PropertyBlock();
    ::operator delete(block);
}

} // namespace Halvane::Corvex::Designer
