// SPDX-License-Identifier: MIT
#include "corvex/values/PropertyList.h"

#include <QStringTokenizer>

#include <algorithm>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

PropertyList::PropertyList(QStringView text, bool *ok)
{
    QList<PropertyChangeInfo> changes;
    bool parsed = true;
    for (const QStringView item : qTokenize(text.trimmed(), u'|')) {
        changes.append(PropertyChangeInfo(item, &parsed));
        if (!parsed)
            break;
    }
    if (parsed)
        append(changes);
    if (ok)
        *ok = parsed;
}

PropertyList &PropertyList::operator<<(const PropertyChangeInfo &change)
{
    append(change);
    return *this;
}

PropertyList &PropertyList::operator<<(const QList<PropertyChangeInfo> &changes)
{
    append(changes);
    return *this;
}

bool PropertyList::replace(const QString &element, const QList<PropertyChangeInfo> &changes)
{
    const Range range = rangeOf(element);
    if (range.count == 0)
        return false;
    KeyedRecords<ByPair> replaced = m_changes;
    replaced.remove(range.first, range.count);
    const qsizetype complete = replaced.size() + changes.size();
    replaced.add(changes);
    if (replaced.size() != complete)
        return false;
    m_changes = replaced;
    return true;
}

bool PropertyList::replace(const QString &element, const QString &property, const PropertyChangeInfo &change)
{
    return m_changes.replaceAt(indexOf(element, property), change);
}

bool PropertyList::replace(qsizetype index, const PropertyChangeInfo &change)
{
    return m_changes.replaceAt(index, change);
}

int PropertyList::remove(const QString &element, const QString &property)
{
    const qsizetype index = indexOf(element, property);
    m_changes.takeAt(index);
    return index < 0 ? 0 : 1;
}

bool PropertyList::remove(const PropertyChangeInfo &change)
{
    return remove(change.elementName(), change.propertyName()) == 1;
}

QList<PropertyChangeInfo> PropertyList::take(const QString &element)
{
    QList<PropertyChangeInfo> taken = values(element);
    m_changes.remove(rangeOf(element).first, taken.size());
    return taken;
}

PropertyChangeInfo PropertyList::take(const QString &element, const QString &property)
{
    return m_changes.takeAt(indexOf(element, property));
}

bool PropertyList::contains(const QString &element, const QString &property) const
{
    return indexOf(element, property) >= 0;
}

qsizetype PropertyList::indexOf(const QString &element, const QString &property) const
{
    return m_changes.indexOf({element, property});
}

qsizetype PropertyList::indexOf(const PropertyChangeInfo &change) const
{
    return m_changes.indexOf(ByPair::key(change));
}

PropertyChangeInfo PropertyList::value(const QString &element, const QString &property) const
{
    return toList().value(indexOf(element, property));
}

QList<PropertyChangeInfo> PropertyList::values(const QString &element) const
{
    const Range range = rangeOf(element);
    return toList().mid(range.first, range.count);
}

QStringList PropertyList::elements() const
{
    QStringList names;
    for (const PropertyChangeInfo &change : *this) {
        if (names.isEmpty() || names.last() != change.elementName())
            names.append(change.elementName());
    }
    return names;
}

PropertyList::Map PropertyList::toMap() const
{
    Map map;
    for (const PropertyChangeInfo &change : *this)
        map[change.elementName()].insert(change.propertyName(), change);
    return map;
}

QString PropertyList::toString() const
{
    QString text;
    for (const PropertyChangeInfo &change : *this)
        text.append(text.isEmpty() ? ""_L1 : " | "_L1).append(change.toString());
    return text;
}

PropertyList::Range PropertyList::rangeOf(const QString &element) const
{
    const auto first = begin() + m_changes.placeOf({element, {}});
    const auto last = std::find_if(
        first, end(), [&](const PropertyChangeInfo &change) { return change.elementName() != element; });
    return {first - begin(), last - first};
}

} // namespace Halvane::Corvex::Designer
