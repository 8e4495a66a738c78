// SPDX-License-Identifier: MIT
#include "corvex/core/private/PropertyBlock.h"

#include <algorithm>
#include <limits>
#include <new>

namespace Halvane::Corvex::Designer {

QSharedPointer<PropertyBlock> PropertyBlock::create(size_t size, DesignerObject *parent)
{
    constexpr size_t largest = std::numeric_limits<Distance>::max();
    const size_t end = std::min(units(sizeof(PropertyBlock)) + units(size), largest);
    void *memory = ::operator new(end *unit);
    return QSharedPointer<PropertyBlock>(new (memory) PropertyBlock(end, parent), &PropertyBlock::destroy);
}

SharedProperty PropertyBlock::make(const QSharedPointer<PropertyBlock> &block, const PropertyRow &row)
{
    const size_t taken = block ? block->m_used * unit + block->m_made * sizeof(Distance) : 0;
    if (!block || !row.m_builder || taken + sizeFor(row) > block->m_end * unit) {
        return {};
    }
    // DesignerProperty is not the first base of every class.
    DesignerProperty *property = row.m_builder(block->begin() + block->m_used * unit, *row.m_prototype);
    property->m_blockDistance = Distance((reinterpret_cast<char *>(property) - block->begin()) / unit);
    block->m_used += Distance(units(row.m_size));
    ++block->m_made;
    block->distances()[-block->m_made] = property->m_blockDistance;
    return QtSharedPointer::copyAndSetPointer(property, block);
}

void PropertyBlock::append(const DesignerProperty &property)
{
    Distance *end = distances();
    Distance *place = std::find(end - m_made, end - m_count, property.m_blockDistance);
    ++m_count;
    std::swap(*place, end[-m_count]);
}

void PropertyBlock::destroy(PropertyBlock *block)
{
    for (int i = 1; i <= block->m_made; ++i) {
        char *place = block->begin() + block->distances()[-i] * unit;
        reinterpret_cast<DesignerProperty *>(place)->~DesignerProperty();
    }
    block->~PropertyBlock();
    ::operator delete(block);
}

} // namespace Halvane::Corvex::Designer
