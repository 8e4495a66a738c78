// SPDX-License-Identifier: MIT
#include "corvex/core/private/PropertyStore.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/PropertyRange.h"

#include <QHash>

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

//! Separate allocations let the address sanitizer check each property.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool usesBlocks = false;
#elif defined(__has_feature)
constexpr bool usesBlocks = !__has_feature(address_sanitizer);
#else
constexpr bool usesBlocks = true;
#endif

//! The block size for an object of a class, measured on an object without a block.
struct ClassNeeds
{
    size_t bytes = 0;
    size_t sum = 0;                           //!< of the object being measured
    const DesignerObject *measured = nullptr; //!< only compared, never dereferenced
    bool areKnown = false;
};

ClassNeeds &needsOf(const DesignerObject &object)
{
    static thread_local QHash<QString, ClassNeeds> needs;
    return needs[object.className()];
}

} // namespace

SharedProperty PropertyStore::make(const PropertyRow &row, DesignerObject *parent)
{
    if (!usesBlocks) {
        return row.makeAlone(parent);
    }
    if (!m_block) {
        ClassNeeds &needs = needsOf(*parent);
        const bool isFirst = count() == 0;
        if (isFirst && needs.areKnown) {
            m_block = PropertyBlock::create(needs.bytes, parent);
        } else if (isFirst) {
            needs.measured = parent;
            needs.sum = 0;
            needs.areKnown = true;
        }
        if (!m_block && needs.measured == parent) {
            needs.sum += PropertyBlock::sizeFor(row);
            needs.bytes = std::max(needs.bytes, needs.sum);
        }
    }
    if (SharedProperty property = PropertyBlock::make(m_block, row)) {
        return property;
    }
    if (m_block && PropertyBlock::sizeFor(row) > 0) {
        needsOf(*parent).areKnown = false; // Measure the next object again.
    }
    return row.makeAlone(parent);
}

void PropertyStore::append(const SharedProperty &property)
{
    const bool isInBlock = m_block && PropertyBlock::of(*property) == m_block.data();
    if (isInBlock && !m_others) {
        m_block->append(*property);
        return;
    }
    if (!m_others) {
        m_others = std::make_unique<std::vector<SharedProperty>>();
    }
    m_others->push_back(property);
}

SharedProperty PropertyStore::shared(qsizetype index) const
{
    const qsizetype inBlock = countInBlock();
    return index < inBlock ? QtSharedPointer::copyAndSetPointer(m_block->at(index), m_block)
                           : (*m_others)[size_t(index - inBlock)];
}

SharedProperty PropertyStore::shared(const DesignerProperty *property) const
{
    if (property && m_block && PropertyBlock::of(*property) == m_block.data()) {
        return QtSharedPointer::copyAndSetPointer(const_cast<DesignerProperty *>(property), m_block);
    }
    for (qsizetype i = countInBlock(); i < count(); ++i) {
        if (at(i) == property) {
            return shared(i);
        }
    }
    return {};
}

void PropertyStore::leaveParent()
{
    if (m_block) {
        m_block->leaveParent();
    }
    for (qsizetype i = countInBlock(); i < count(); ++i) {
        if (!PropertyBlock::of(*at(i))) {
            at(i)->setParentObject(nullptr);
        }
    }
}

qsizetype PropertyRange::size() const
{
    return m_store->count();
}

qsizetype PropertyRange::indexOf(const SharedProperty &property) const
{
    qsizetype index = m_store->count() - 1;
    while (index >= 0 && m_store->at(index) != property.data()) {
        --index;
    }
    return index;
}

const DesignerProperty &PropertyRange::peek(qsizetype index) const
{
    return *m_store->at(index);
}

SharedProperty PropertyRange::at(qsizetype index) const
{
    return m_store->shared(index);
}

} // namespace Halvane::Corvex::Designer
