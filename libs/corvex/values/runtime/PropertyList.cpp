// SPDX-License-Identifier: MIT
#include "corvex/values/runtime/PropertyList.h"

#include <QStringTokenizer>

#include <algorithm>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

PropertyList::PropertyList(const QString &text, bool *ok)
{
    QList<PropertyChangeInfo> changes;
    bool parsed = true;
    for (const QStringView item : qTokenize(text.trimmed(), u'|')) {
        changes.append(PropertyChangeInfo(item.toString(), &parsed));
        if (!parsed) {
            break;
        }
    }
    if (parsed) {
        append(changes);
    }
    if (ok) {
        *ok = parsed;
    }
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
    PropertyList replaced = *this;
    if (replaced.take(element).isEmpty()) {
        return false;
    }
    const qsizetype complete = replaced.size() + changes.size();
    replaced.append(changes);
    if (replaced.size() != complete) {
        return false;
    }
    *this = replaced;
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
    const QList<PropertyChangeInfo> taken = values(element);
    const qsizetype first = m_changes.placeOf({element, {}});
    for (qsizetype i = 0; i < taken.size(); ++i) {
        m_changes.takeAt(first);
    }
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
    return m_changes.value(indexOf(element, property));
}

QList<PropertyChangeInfo> PropertyList::values(const QString &element) const
{
    QList<PropertyChangeInfo> values;
    std::copy_n(m_changes.from({element, {}}), count(element), std::back_inserter(values));
    return values;
}

QStringList PropertyList::elements() const
{
    QStringList names;
    for (const PropertyChangeInfo &change : *this) {
        if (names.isEmpty() || names.last() != change.elementName()) {
            names.append(change.elementName());
        }
    }
    return names;
}

PropertyList::Map PropertyList::toMap() const
{
    Map map;
    for (const PropertyChangeInfo &change : *this) {
        map[change.elementName()].insert(change.propertyName(), change);
    }
    return map;
}

QString PropertyList::toString() const
{
    QString text;
    for (const PropertyChangeInfo &change : *this) {
        text.append(text.isEmpty() ? ""_L1 : " | "_L1).append(change.toString());
    }
    return text;
}

qsizetype PropertyList::count(const QString &element) const
{
    const auto isOther = [&](const PropertyChangeInfo &change) { return change.elementName() != element; };
    const const_iterator first = m_changes.from({element, {}});
    return std::distance(first, std::find_if(first, end(), isOther));
}

} // namespace Halvane::Corvex::Designer
