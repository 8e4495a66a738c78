// SPDX-License-Identifier: MIT
#include "corvex/core/ItemList.h"

#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

bool ItemList::contains(const DesignerObject *item) const
{
    return item && m_byName.contains(item->getIdName(), const_cast<DesignerObject *>(item));
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

void ItemList::insert(qsizetype index, DesignerObject *item)
{
    m_items.insert(index, item);
    m_byName.insert(item->getIdName(), item);
    invalidCount += item->isValid() ? 0 : 1;
    newestIndex = index;
    if (!m_kept.isEmpty()) {
        takeBack(before(index), item);
    }
}

void ItemList::takeBack(const DesignerObject *from, const DesignerObject *item)
{
    QList<KeptItem> stays;
    QList<KeptItem> goes;
    for (KeptItem &kept : m_kept.take(from)) {
        const bool isBack = !kept.leftBehind.isEmpty() && kept.leftBehind.constLast() == item;
        if (isBack) {
            kept.leftBehind.removeLast();
        }
        (isBack ? goes : stays).append(kept);
    }
    if (!stays.isEmpty()) {
        m_kept.insert(from, stays);
    }
    if (!goes.isEmpty()) {
        m_kept.insert(item, goes);
    }
}

void ItemList::removeAt(qsizetype index)
{
    DesignerObject *item = m_items.at(index);
    if (QList<KeptItem> left = m_kept.take(item); !left.isEmpty()) {
        for (KeptItem &kept : left) {
            kept.leftBehind.append(item);
        }
        m_kept[before(index)] += left;
    }
    m_items.removeAt(index);
    m_byName.remove(item->getIdName(), item);
    invalidCount -= item->isValid() ? 0 : 1;
    newestIndex = -1;
}

void ItemList::replaceAt(qsizetype index, DesignerObject *item)
{
    const QList<KeptItem> kept = m_kept.take(m_items.at(index));
    removeAt(index);
    insert(index, item);
    if (!kept.isEmpty()) {
        m_kept[item] += kept;
    }
}

void ItemList::swap(qsizetype first, qsizetype second)
{
    m_items.swapItemsAt(first, second);
}

void ItemList::move(qsizetype from, qsizetype to)
{
    m_items.insert(to, m_items.takeAt(from));
}

QList<KeptItem> ItemList::keptItems() const
{
    QList<KeptItem> kept = m_kept.value(nullptr);
    if (!m_kept.isEmpty()) {
        for (const DesignerObject *item : m_items) {
            kept += m_kept.value(item);
        }
    }
    return kept;
}

void ItemList::keep(const KeptItem &kept)
{
    m_kept[m_items.isEmpty() ? nullptr : m_items.constLast()].append(kept);
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
    } else {
        isOrdered = false;
    }
}

} // namespace Halvane::Corvex::Designer
