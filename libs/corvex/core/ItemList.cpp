// SPDX-License-Identifier: MIT
#include "corvex/core/ItemList.h"

#include "corvex/core/DesignerObject.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

bool ItemList::contains(const DesignerObject *item) const
{
    return item && bears(item, item->getIdName());
}

bool ItemList::bears(const DesignerObject *item, const QString &name) const
{
    return m_isIndexed ? m_byName.contains(name, item) : item->getIdName() == name && indexOf(item) >= 0;
}

qsizetype ItemList::indexOf(const DesignerObject *item) const
{
    // Lists grow at their end and are emptied from either end.
    const bool isFirst = !m_items.isEmpty() && m_items.constFirst() == item;
    return isFirst ? 0 : m_items.lastIndexOf(const_cast<DesignerObject *>(item));
}

QList<DesignerObject *> ItemList::named(const QString &name) const
{
    if (m_isIndexed) {
        return m_byName.find(name);
    }
    QList<DesignerObject *> found;
    std::copy_if(m_items.begin(), m_items.end(), std::back_inserter(found),
                 [&name](const DesignerObject *item) { return item->getIdName() == name; });
    return found;
}

DesignerObject *ItemList::find(const QString &name) const
{
    const QList<DesignerObject *> found = named(name);
    if (found.size() < 2) {
        return found.value(0);
    }
    return *std::min_element(found.begin(), found.end(),
                             [this](const DesignerObject *left, const DesignerObject *right) {
                                 return indexOf(left) < indexOf(right);
                             });
}

void ItemList::enterIndex(DesignerObject *item)
{
    constexpr qsizetype shortList = 8;
    if (m_isIndexed) {
        m_byName.insert(item);
    } else if (m_items.size() > shortList) {
        m_isIndexed = true;
        for (DesignerObject *each : std::as_const(m_items)) {
            m_byName.insert(each);
        }
    }
}

ItemPlace ItemList::placeOf(const DesignerObject *item) const
{
    const qsizetype index = indexOf(item);
    return {index, keptUpTo(index)};
}

//! The number of kept items before the item with that index.
qsizetype ItemList::keptUpTo(qsizetype index) const
{
    return std::ranges::upper_bound(m_kept, index, {}, &KeptItem::itemsBefore) - m_kept.cbegin();
}

void ItemList::shiftKept(qsizetype first, qsizetype by)
{
    for (qsizetype i = first; i < m_kept.size(); ++i) {
        m_kept[i].itemsBefore += by;
    }
}

void ItemList::insert(ItemPlace place, DesignerObject *item)
{
    m_items.insert(place.index, item);
    enterIndex(item);
    invalidCount += item->isValid() ? 0 : 1;
    newestIndex = place.index;
    m_hasNewestComeIn = true;
    const qsizetype most = keptUpTo(place.index);
    shiftKept(place.keptBefore < 0 ? most : std::clamp(place.keptBefore, keptUpTo(place.index - 1), most), 1);
}

void ItemList::removeAt(qsizetype index)
{
    DesignerObject *item = m_items.at(index);
    shiftKept(keptUpTo(index), -1);
    m_items.removeAt(index);
    m_byName.remove(item->getIdName(), item);
    invalidCount -= item->isValid() ? 0 : 1;
    newestIndex = -1;
}

void ItemList::replaceAt(qsizetype index, DesignerObject *item)
{
    const ItemPlace place{index, keptUpTo(index)};
    removeAt(index);
    insert(place, item);
}

void ItemList::move(qsizetype from, qsizetype to)
{
    m_items.move(from, to);
    // Insert a new item past the kept items, as if it had been inserted there.
    if (m_hasNewestComeIn) {
        shiftKept(keptUpTo(from), -1);
        shiftKept(keptUpTo(to), 1);
    }
}

void ItemList::forgetNewest()
{
    newestIndex = -1;
    m_hasNewestComeIn = false;
}

void ItemList::keep(const KeptItem &kept)
{
    m_kept.append(kept);
    m_kept.last().itemsBefore = m_items.size();
}

void ItemList::rekey(const QString &oldName, DesignerObject *item)
{
    const bool isRenamed = item->getIdName() != oldName && (!m_isIndexed || m_byName.remove(oldName, item));
    if (!isRenamed) {
        return;
    }
    if (m_isIndexed) {
        m_byName.insert(item);
    }
    if (isOrdered && newestIndex < 0) {
        newestIndex = indexOf(item);
        m_hasNewestComeIn = false;
    } else {
        isOrdered = false;
    }
}

} // namespace Halvane::Corvex::Designer
