// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/NameIndex.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! An item of a stored list that could not be made into an object, kept to be written back as it was.
struct CORVEX_EXPORT KeptItem
{
    QByteArray xml; //!< the element in UTF-8, its lines parted by "\n", indented from level 0
    QString className;
    QString name; //!< its identifier name, empty when none could be made out
    //! Kept because an earlier item has the same name.
    bool isNamesake = false;
    qsizetype itemsBefore = 0; //!< how many items of the list come before it
};

//! Where an item is among the items of a list and those that are kept.
struct CORVEX_EXPORT ItemPlace
{
    qsizetype index = -1;      //!< among the items; -1 when it is not in the list
    qsizetype keptBefore = -1; //!< how many kept items come before it; -1 for all that its index allows
};

/*! The children of a list property: in order, and found by identifier name in constant time. Most lists of a
    project are short; those are searched without an index.

    The list owns nothing. Call rekey() when an item was renamed. Two items may have the same name, since the
    model stores bad names and marks them; find() then returns the first in list order.

    Kept items have places of their own between the items. They move when an item is inserted or removed
    before them, and stay when items change places among themselves.
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
    //! How many items bear that name.
    qsizetype countOf(const QString &name) const { return named(name).size(); }

    //! The index of the place is at most the number of items.
    void insert(ItemPlace place, DesignerObject *item);
    void removeAt(qsizetype index);
    void replaceAt(qsizetype index, DesignerObject *item);
    //! Moves an item; \a to is its index afterwards. Kept items make way for the newest item if it was just
    //! inserted, and stay otherwise.
    void move(qsizetype from, qsizetype to);
    //! For a list whose newest item is in its place.
    void forgetNewest();
    //! Takes over \a order, which holds the same items.
    void reorder(const QList<DesignerObject *> &order) { m_items = order; }
    //! Moves \a item from its old name to its present one; harmless if that was done before.
    void rekey(const QString &oldName, DesignerObject *item);

    bool hasKeptItems() const { return !m_kept.isEmpty(); }
    //! All that is kept, in list order.
    const QList<KeptItem> &keptItems() const { return m_kept; }
    //! Keeps \a kept at the end of the list.
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

    //! The number of items whose object is invalid, as counted by the objects themselves.
    qsizetype invalidCount = 0;
    //! Items stay where they are put, for example while a stored list is being read.
    bool isOrderingPaused = false;
    //! False when more than one item may be out of order.
    bool isOrdered = true;
    //! The index of the item that was inserted or renamed last. It is the only one out of order if isOrdered;
    //! -1 if the list has no such item.
    qsizetype newestIndex = -1;

private:
    qsizetype keptUpTo(qsizetype index) const;
    void shiftKept(qsizetype first, qsizetype by);
    void enterIndex(DesignerObject *item);
    QList<DesignerObject *> named(const QString &name) const;

    QList<DesignerObject *> m_items;
    NameIndex m_byName; //!< of a list that was short so far it holds nothing
    bool m_isIndexed = false;
    bool m_hasNewestComeIn = false; //!< the newest item was inserted, not renamed
    QList<KeptItem> m_kept;         //!< in list order
};

} // namespace Halvane::Corvex::Designer
