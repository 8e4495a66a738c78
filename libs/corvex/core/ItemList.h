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
    //! Kept because an item before it has the same name, which counts.
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
    project are short; those are walked and have no index.

    The list owns nothing. It does not learn of a new name by itself: rekey() tells it. Two items may bear one
    name, since the model stores bad names and marks them; find() then answers the first in list order.

    What is kept has its own place between the items. It moves when an item comes or goes before it, and stays
   where it is when items change places among themselves.
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

    //! The index of the place must be one of the list, or the one behind the last.
    void insert(ItemPlace place, DesignerObject *item);
    void removeAt(qsizetype index);
    void replaceAt(qsizetype index, DesignerObject *item);
    void swap(qsizetype first, qsizetype second);
    //! Puts the item that came in or got its name last in order; \a to is its index afterwards.
    void moveNewest(qsizetype from, qsizetype to);
    //! Takes over \a order, which holds the same items.
    void reorder(const QList<DesignerObject *> &order) { m_items = order; }
    //! Moves \a item from its old name to the one it bears now; harmless when that was done before.
    void rekey(const QString &oldName, DesignerObject *item);

    bool hasKeptItems() const { return !m_kept.isEmpty(); }
    //! All that is kept, in list order.
    const QList<KeptItem> &keptItems() const { return m_kept; }
    //! Keeps \a kept at the end of the list.
    void keep(const KeptItem &kept);
    void dropKeptItems() { m_kept.clear(); }
    //! Shows items and kept items in the order in which they are stored.
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
    //! Items stay where they are put, as long as a stored list is being read or somebody wants it so.
    bool isOrderingPaused = false;
    //! False when more than one item may be out of order.
    bool isOrdered = true;
    //! The index of the item that came in or got its name last, the only one out of order when isOrdered; -1
    //! when there is none.
    qsizetype newestIndex = -1;

private:
    qsizetype keptUpTo(qsizetype index) const;
    void shiftKept(qsizetype first, qsizetype by);
    void enterIndex(DesignerObject *item);
    QList<DesignerObject *> named(const QString &name) const;

    QList<DesignerObject *> m_items;
    NameIndex m_byName; //!< of a list that was short so far it holds nothing
    bool m_isIndexed = false;
    bool m_hasNewestComeIn = false; //!< the newest item is new to the list, not just to its name
    QList<KeptItem> m_kept;         //!< in list order
};

} // namespace Halvane::Corvex::Designer
