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
    return m_byName.contains(name, const_cast<DesignerObject *>(item));
}

qsizetype ItemList::indexOf(const DesignerObject *item) const
{
    // Lists grow at their end, and are emptied from either.
    const bool isFirst = !m_items.isEmpty() && m_items.constFirst() == item;
    return isFirst ? 0 : m_items.lastIndexOf(const_cast<DesignerObject *>(item));
}

DesignerObject *ItemList::find(const QString &name) const
{
    const auto [first, last] = m_byName.equal_range(name);
    if (first == last) {
        return nullptr;
    }
    if (std::next(first) == last) {
        return *first;
    }
    return *std::min_element(first, last, [this](const DesignerObject *left, const DesignerObject *right) {
        return indexOf(left) < indexOf(right);
    });
}

ItemPlace ItemList::placeOf(const DesignerObject *item) const
{
    const qsizetype index = indexOf(item);
    return {index, keptUpTo(index)};
}

//! How many kept items come before the item of that index.
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
    m_byName.insert(item->getIdName(), item);
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

void ItemList::swap(qsizetype first, qsizetype second)
{
    m_items.swapItemsAt(first, second);
}

void ItemList::moveNewest(qsizetype from, qsizetype to)
{
    m_items.move(from, to);
    // A new item goes to its place past what is kept, as if it had come in there.
    if (m_hasNewestComeIn) {
        shiftKept(keptUpTo(from), -1);
        shiftKept(keptUpTo(to), 1);
    }
}

void ItemList::keep(const KeptItem &kept)
{
    m_kept.append(kept);
    m_kept.last().itemsBefore = m_items.size();
}

void ItemList::rekey(const QString &oldName, DesignerObject *item)
{
    const QString name = item->getIdName();
    if (name == oldName || m_byName.remove(oldName, item) == 0) {
        return;
    }
    m_byName.insert(name, item);
    if (isOrdered && newestIndex < 0) {
        newestIndex = indexOf(item);
        m_hasNewestComeIn = false;
    } else {
        isOrdered = false;
    }
}

} // namespace Halvane::Corvex::Designer
