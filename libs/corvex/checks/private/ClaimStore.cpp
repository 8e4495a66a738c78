// SPDX-License-Identifier: MIT
#include "corvex/checks/private/ClaimStore.h"

#include "corvex/core/DesignerObject.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

//! For more objects a walk through the list is faster than searching for each.
constexpr qsizetype mostSearches = 16;

//! Puts objects of one list into its order.
void sortByPlace(QList<const DesignerObject *> &objects)
{
    const SharedProperty list = objects.size() > 1 ? objects.constFirst()->listProperty() : SharedProperty();
    if (!list) {
        return;
    }
    QHash<const DesignerObject *, qsizetype> places;
    if (objects.size() <= mostSearches) {
        for (const DesignerObject *object : std::as_const(objects)) {
            places.insert(object, list->getListItemIndex(object));
        }
    } else {
        for (const DesignerObject *item : list->listItems()) {
            places.insert(item, places.size());
        }
    }
    std::ranges::sort(objects, {}, [&places](const DesignerObject *object) { return places.value(object); });
}

} // namespace

void ClaimStore::remove(const DesignerObject *object, const Claims &claims)
{
    for (const auto &[key, isSubject] : claims) {
        m_changed.insert(key);
        const auto group = m_groups.find(key);
        if (isSubject) {
            group->subjects.remove(object);
        } else {
            --group->otherCount;
        }
        if (group->subjects.isEmpty() && group->otherCount == 0) {
            m_groups.erase(group);
        }
    }
}

QStringList ClaimStore::set(DesignerObject *object, const Claims &claims)
{
    const Claims before = claims.isEmpty() ? m_claims.take(object) : m_claims.value(object);
    remove(object, before);
    for (const auto &[key, isSubject] : claims) {
        m_changed.insert(key);
        Group &group = m_groups[key];
        if (isSubject) {
            group.subjects.insert(object);
        } else {
            ++group.otherCount;
        }
    }
    if (!claims.isEmpty()) {
        m_claims.insert(object, claims);
    }
    QStringList left;
    for (const auto &[key, isSubject] : before) {
        if (isSubject && !m_groups.value(key).subjects.contains(object)) {
            left.append(key);
        }
    }
    return left;
}

void ClaimStore::drop(const DesignerObject *object)
{
    if (!m_claims.isEmpty()) {
        remove(object, m_claims.take(object));
    }
}

void ClaimStore::compareAll()
{
    for (const auto &[key, group] : m_groups.asKeyValueRange()) {
        if (group.subjects.size() > 1) {
            m_changed.insert(key);
        }
    }
}

void ClaimStore::compareGroupsOf(const DesignerObject *object)
{
    for (const SharedCheck::Claim &claim : m_claims.value(object)) {
        m_changed.insert(claim.key);
    }
}

SharedCheck::Group ClaimStore::takeChanged()
{
    const QString key = *m_changed.constBegin();
    m_changed.erase(m_changed.constBegin());
    const auto known = m_groups.constFind(key);
    if (known == m_groups.cend()) {
        return {key, {}, 0};
    }
    SharedCheck::Group group{key, known->subjects.values(), known->otherCount};
    sortByPlace(group.subjects);
    return group;
}

} // namespace Halvane::Corvex::Designer
