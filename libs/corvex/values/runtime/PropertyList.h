// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/PropertyChangeInfo.h"
#include "corvex/values/text/KeyedRecords.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace Halvane::Corvex::Designer {

//! Changes of properties, ordered by element name and then by property name. Each pair of element and
//! property occurs at most once. Searches for a change compare only this pair. If nothing is found, the
//! result is a default-constructed change; only at() and operator[] require a valid index.
class CORVEX_EXPORT PropertyList
{
    struct Pair
    {
        QStringView element;
        QStringView property;
        friend bool operator==(const Pair &, const Pair &) = default;
        friend bool operator<(const Pair &a, const Pair &b)
        {
            const int order = a.element.compare(b.element);
            return order < 0 || (order == 0 && a.property < b.property);
        }
    };
    struct ByPair
    {
        using Record = PropertyChangeInfo;
        using Key = Pair;
        static Key key(const Record &change) { return {change.elementName(), change.propertyName()}; }
        static bool isComplete(Key key) { return !key.element.isEmpty() && !key.property.isEmpty(); }
    };

public:
    using value_type = PropertyChangeInfo;
    using const_iterator = KeyedRecords<ByPair>::const_iterator;
    using Map = QMap<QString, QMap<QString, PropertyChangeInfo>>;

    PropertyList() = default;
    //! Changes joined with " | ", added as by append(). The list is empty if any change is invalid.
    explicit PropertyList(const QString &text, bool *ok = nullptr);

    //! Ignores a change that lacks a name, or whose pair is already in the list.
    void append(const PropertyChangeInfo &change) { m_changes.add(change); }
    //! The same for several changes, which are sorted once.
    void append(const QList<PropertyChangeInfo> &changes) { m_changes.add(changes); }
    void append(const PropertyList &list) { m_changes.add(list.toList()); }
    PropertyList &operator<<(const PropertyChangeInfo &change);
    PropertyList &operator<<(const QList<PropertyChangeInfo> &changes);
    PropertyList &operator<<(const PropertyList &list) { return *this << list.toList(); }

    // These functions replace existing changes by others, which may have other names. They return false and
    // change nothing if there is nothing to replace, if a new change lacks a name, or if its pair equals that
    // of another new or remaining change.
    bool replace(const QString &element, const QList<PropertyChangeInfo> &changes);
    bool replace(const QString &element, const QString &property, const PropertyChangeInfo &change);
    bool replace(qsizetype index, const PropertyChangeInfo &change);

    //! Returns the number of removed changes: 0 or 1.
    int remove(const QString &element, const QString &property);
    bool remove(const PropertyChangeInfo &change);
    QList<PropertyChangeInfo> take(const QString &element);
    PropertyChangeInfo take(const QString &element, const QString &property);
    PropertyChangeInfo take(qsizetype index) { return m_changes.takeAt(index); }
    void clear() { m_changes.clear(); }
    void clear(const QString &element) { take(element); }

    bool contains(const QString &element, const QString &property) const;
    bool contains(const PropertyChangeInfo &change) const { return indexOf(change) >= 0; }
    //! -1 if the pair is not in the list.
    qsizetype indexOf(const QString &element, const QString &property) const;
    qsizetype indexOf(const PropertyChangeInfo &change) const;
    PropertyChangeInfo value(const QString &element, const QString &property) const;
    //! The changes of an element, ordered by property name.
    QList<PropertyChangeInfo> values(const QString &element) const;
    QStringList elements() const;
    qsizetype count(const QString &element) const;
    bool isEmpty(const QString &element) const { return count(element) == 0; }

    qsizetype count() const { return m_changes.size(); }
    qsizetype size() const { return m_changes.size(); }
    bool isEmpty() const { return m_changes.size() == 0; }
    const PropertyChangeInfo &at(qsizetype index) const { return m_changes.at(index); }
    const PropertyChangeInfo &operator[](qsizetype index) const { return m_changes.at(index); }
    const_iterator begin() const { return m_changes.begin(); }
    const_iterator end() const { return m_changes.end(); }
    QList<PropertyChangeInfo> toList() const { return m_changes.list(); }
    //! Ordered by element name and then by property name.
    Map toMap() const;

    QString toString() const;

    friend bool operator==(const PropertyList &, const PropertyList &) = default;

private:
    KeyedRecords<ByPair> m_changes;
};

} // namespace Halvane::Corvex::Designer
