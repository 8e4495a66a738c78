// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMultiHash>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! An item of a stored list that could not be made into an object, kept to be written back as it was.
struct KeptItem
{
    QByteArray xml; //!< the element in UTF-8, its lines parted by "\n", indented from level 0
    QString className;
    QString name; //!< its identifier name, empty when none could be made out
    //! Items that it stood behind before they left the list, the last to leave at the end.
    QList<const DesignerObject *> leftBehind = {};
};

/*! The children of a list property: in order, and found by identifier name in constant time.

    The list owns nothing. It does not learn of a new name by itself: rekey() tells it. Two items may bear one
    name, since the model stores bad names and marks them; find() then answers the first in list order.
*/
class ItemList
{
public:
    const QList<DesignerObject *> &items() const { return m_items; }
    qsizetype count() const { return m_items.size(); }
    bool contains(const DesignerObject *item) const;
    qsizetype indexOf(const DesignerObject *item) const;
    DesignerObject *find(const QString &name) const;
    //! How many items bear that name.
    qsizetype countOf(const QString &name) const { return m_byName.count(name); }

    //! An item that comes back to its place has behind it again what was kept there.
    void insert(qsizetype index, DesignerObject *item);
    //! What is kept behind the item stays, behind the one before it.
    void removeAt(qsizetype index);
    //! What is kept behind the old item stays behind the new one.
    void replaceAt(qsizetype index, DesignerObject *item);
    void swap(qsizetype first, qsizetype second);
    //! Moves an item; \a to is its index afterwards.
    void move(qsizetype from, qsizetype to);
    //! Takes over \a order, which holds the same items.
    void reorder(const QList<DesignerObject *> &order) { m_items = order; }
    //! Moves \a item from its old name to the one it bears now; harmless when that was done before.
    void rekey(const QString &oldName, DesignerObject *item);

    bool hasKeptItems() const { return !m_kept.isEmpty(); }
    //! What stands behind \a item, or at the start of the list for null.
    QList<KeptItem> keptItems(const DesignerObject *item) const { return m_kept.value(item); }
    //! All that is kept, in list order.
    QList<KeptItem> keptItems() const;
    //! Keeps \a kept behind the item that is the last now. It moves with that item.
    void keep(const KeptItem &kept);
    void dropKeptItems() { m_kept.clear(); }

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
    const DesignerObject *before(qsizetype index) const
    {
        return index > 0 ? m_items.at(index - 1) : nullptr;
    }
    void takeBack(const DesignerObject *from, const DesignerObject *item);

    QList<DesignerObject *> m_items;
    QMultiHash<QString, DesignerObject *> m_byName;
    QHash<const DesignerObject *, QList<KeptItem>> m_kept; //!< by the item that they stand behind
};

} // namespace Halvane::Corvex::Designer
