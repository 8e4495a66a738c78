// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/NameIndex.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! A stored list item that could not be read as an object, kept unchanged to be written back.
struct CORVEX_EXPORT KeptItem
{
    QByteArray xml; //!< the element in UTF-8, its lines separated by "\n", indented from level 0
    QString className;
    QString name; //!< its identifier name; empty if unknown
    //! Kept because an earlier item has the same name.
    bool isNamesake = false;
    qsizetype itemsBefore = 0; //!< the number of list items before it
};

//! A position among the items and kept items of a list.
struct CORVEX_EXPORT ItemPlace
{
    qsizetype index = -1;      //!< among the items; -1 if it is not in the list
    qsizetype keptBefore = -1; //!< the number of kept items before it; -1 for the maximum at this index
};

/*! The children of a list property, in order, with lookup by identifier name in constant time. Most lists of
    a project are short; those are searched without an index.

    The list owns nothing. Call rekey() after an item was renamed. Two items may have the same name, because
    the model stores bad names and marks them; find() then returns the first in list order.

    Kept items have positions of their own between the items. These shift when an item is inserted or removed
    before them, and do not change when items swap places.
*/
class CORVEX_EXPORT ItemList
{
public:
    const QList<DesignerObject *> &items() const { return m_items; }
    qsizetype count() const { return m_items.size(); }
    bool contains(const DesignerObject *item) const;
    //! Whether \a item is in the list under that name.
    bool bears(const DesignerObject *item, const QString &name) const;
    qsizetype indexOf(const DesignerObject *item) const;
    ItemPlace placeOf(const DesignerObject *item) const;
    DesignerObject *find(const QString &name) const;
    //! The number of items with that name.
    qsizetype countOf(const QString &name) const { return named(name).size(); }

    //! The index must not exceed the number of items.
    void insert(ItemPlace place, DesignerObject *item);
    void removeAt(qsizetype index);
    void replaceAt(qsizetype index, DesignerObject *item);
    //! Moves an item; \a to is its index afterwards. Kept items shift if the item is the newest one and was
    //! just inserted; otherwise they stay.
    void move(qsizetype from, qsizetype to);
    //! Call it when the newest item is in its final position.
    void forgetNewest();
    //! Replaces the order; \a order contains the same items.
    void reorder(const QList<DesignerObject *> &order) { m_items = order; }
    //! Re-indexes \a item from its old name to its current one; harmless if repeated.
    void rekey(const QString &oldName, DesignerObject *item);

    bool hasKeptItems() const { return !m_kept.isEmpty(); }
    //! All kept items, in list order.
    const QList<KeptItem> &keptItems() const { return m_kept; }
    //! Adds \a kept at the end of the list.
    void keep(const KeptItem &kept);
    void dropKeptItems() { m_kept.clear(); }
    //! Visits items and kept items in the order in which they are stored.
    template<class OnItem, class OnKept>
    void walk(const OnItem &onItem, const OnKept &onKept) const
    {
        auto kept = m_kept.cbegin();
        for (qsizetype index = 0; index <= m_items.size(); ++index) {
            for (; kept != m_kept.cend() && kept->itemsBefore <= index; ++kept) {
                onKept(*kept);
            }
            if (index < m_items.size()) {
                onItem(m_items.at(index));
            }
        }
    }

    //! The number of invalid items, updated by the objects themselves.
    qsizetype invalidCount = 0;
    //! If set, items are not sorted, for example while a stored list is being read.
    bool isOrderingPaused = false;
    //! False if more than one item may be out of order.
    bool isOrdered = true;
    //! The index of the item that was inserted or renamed last, or -1. If isOrdered, it is the only item that
    //! may be out of order.
    qsizetype newestIndex = -1;

private:
    qsizetype keptUpTo(qsizetype index) const;
    void shiftKept(qsizetype first, qsizetype by);
    void enterIndex(DesignerObject *item);
    QList<DesignerObject *> named(const QString &name) const;

    QList<DesignerObject *> m_items;
    NameIndex m_byName; //!< empty as long as the list is short
    bool m_isIndexed = false;
    bool m_hasNewestComeIn = false; //!< the newest item was inserted, not renamed
    QList<KeptItem> m_kept;         //!< in list order
};

} // namespace Halvane::Corvex::Designer
