// SPDX-License-Identifier: MIT
#include "corvex/inspector/private/SheetObjects.h"

namespace Halvane::Corvex::Designer {

namespace {

bool isInside(const DesignerObject *object, const DesignerObject *owner)
{
    do {
        object = object->ownerObject();
    } while (object && object != owner);
    return object;
}

} // namespace

QList<DesignerObject *> SheetObjects::present() const
{
    QList<DesignerObject *> objects;
    for (const QPointer<DesignerObject> &object : m_all) {
        if (object && contains(object)) {
            objects.append(object);
        }
    }
    return objects;
}

const size_t *SheetObjects::placeOf(const DesignerObject *object) const
{
    const auto place = m_places.constFind(object);
    return place == m_places.cend() ? nullptr : &*place;
}

std::vector<size_t> SheetObjects::placesIn(const DesignerObject *object) const
{
    std::vector<size_t> found;
    if (const size_t *place = placeOf(object)) {
        found.push_back(*place);
    }
    if (m_owners.contains(object)) {
        for (const auto &[other, place] : m_places.asKeyValueRange()) {
            if (isInside(other, object)) {
                found.push_back(place);
            }
        }
    }
    return found;
}

std::vector<size_t> SheetObjects::returnedWith(const DesignerObject *object) const
{
    std::vector<size_t> found;
    // Another object may have the address of a deleted one.
    const auto place = m_away.constFind(object);
    if (place != m_away.cend() && m_all[*place] == object) {
        found.push_back(*place);
    }
    if (m_away.size() > qsizetype(found.size()) && !object->childObjects().isEmpty()) {
        for (const size_t other : m_away) {
            if (m_all[other] && isInside(m_all[other], object)) {
                found.push_back(other);
            }
        }
    }
    return found;
}

void SheetObjects::reserve(size_t count)
{
    m_all.reserve(count);
    m_places.reserve(qsizetype(count));
}

size_t SheetObjects::append(DesignerObject *object)
{
    m_all.emplace_back(object);
    enter(m_all.size() - 1);
    return m_all.size() - 1;
}

void SheetObjects::leave(size_t place)
{
    const DesignerObject *object = m_all[place];
    m_places.remove(object);
    m_away.insert(object, place);
    countOwners(object, -1);
}

void SheetObjects::enter(size_t place)
{
    const DesignerObject *object = m_all[place];
    m_away.remove(object);
    m_places.insert(object, place);
    countOwners(object, 1);
}

void SheetObjects::countOwners(const DesignerObject *object, qsizetype by)
{
    for (const DesignerObject *owner = object->ownerObject(); owner; owner = owner->ownerObject()) {
        qsizetype &number = m_owners[owner];
        number += by;
        if (number == 0) {
            m_owners.remove(owner);
        }
    }
}

} // namespace Halvane::Corvex::Designer
