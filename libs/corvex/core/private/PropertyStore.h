// SPDX-License-Identifier: MIT
// Private to the sources of DesignerObject; not installed.
#pragma once

#include "corvex/core/private/PropertyBlock.h"

#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer {

//! Stores the properties of an object in order: as many as possible in one block, the others separately.
class PropertyStore
{
public:
    class Iterator
    {
    public:
        Iterator(const PropertyStore &store, qsizetype index)
            : m_store(store)
            , m_index(index)
        { }
        DesignerProperty *operator*() const { return m_store.at(m_index); }
        Iterator &operator++()
        {
            ++m_index;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return m_index != other.m_index; }

    private:
        const PropertyStore &m_store;
        qsizetype m_index;
    };

    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, count()}; }
    qsizetype count() const { return countInBlock() + (m_others ? qsizetype(m_others->size()) : 0); }
    DesignerProperty *at(qsizetype index) const
    {
        const qsizetype inBlock = countInBlock();
        return index < inBlock ? m_block->at(index) : (*m_others)[size_t(index - inBlock)].data();
    }
    SharedProperty shared(qsizetype index) const;
    //! The shared pointer to a property; null if the store does not contain it.
    SharedProperty shared(const DesignerProperty *property) const;

    //! Creates a property for the object \a parent, which owns this store, to be appended. It is in the block
    //! as long as there is space; each class remembers what its objects have needed so far.
    SharedProperty make(const PropertyRow &row, DesignerObject *parent);
    void append(const SharedProperty &property);
    //! Called when the object is deleted while a property is still in use.
    void leaveParent();

private:
    qsizetype countInBlock() const { return m_block ? m_block->count() : 0; }

    QSharedPointer<PropertyBlock> m_block;
    std::unique_ptr<std::vector<SharedProperty>> m_others; //!< null if empty
};

} // namespace Halvane::Corvex::Designer
