// SPDX-License-Identifier: MIT
#include "corvex/core/NameIndex.h"

#include "corvex/core/DesignerObject.h"

#include <utility>

namespace Halvane::Corvex::Designer {

void NameIndex::put(DesignerObject *object, quint32 hash)
{
    size_t place = hash & (m_objects.size() - 1);
    while (m_objects[place]) {
        place = next(place);
    }
    m_objects[place] = object;
    m_hashes[place] = hash;
    ++m_count;
}

void NameIndex::grow()
{
    constexpr size_t fewest = 16;
    const std::vector<DesignerObject *> objects =
        std::exchange(m_objects, std::vector<DesignerObject *>(std::max(fewest, 2 * m_objects.size())));
    const std::vector<quint32> hashes = std::exchange(m_hashes, std::vector<quint32>(m_objects.size()));
    m_count = 0;
    for (size_t place = 0; place < objects.size(); ++place) {
        if (objects[place]) {
            put(objects[place], hashes[place]);
        }
    }
}

void NameIndex::insert(DesignerObject *object)
{
    if (4 * (m_count + 1) > 3 * m_objects.size()) {
        grow();
    }
    put(object, hashOf(object->getIdName()));
}

bool NameIndex::remove(const QString &name, const DesignerObject *object)
{
    if (m_objects.empty()) {
        return false;
    }
    const quint32 hash = hashOf(name);
    size_t free = hash & (m_objects.size() - 1);
    while (m_objects[free] && (m_objects[free] != object || m_hashes[free] != hash)) {
        free = next(free);
    }
    if (!m_objects[free]) {
        return false;
    }
    // Move later entries up where possible, so that no search ends at the free place.
    for (size_t place = next(free); m_objects[place]; place = next(place)) {
        const size_t home = m_hashes[place] & (m_objects.size() - 1);
        const bool mayMove = free <= place ? home <= free || home > place : home <= free && home > place;
        if (mayMove) {
            m_objects[free] = m_objects[place];
            m_hashes[free] = m_hashes[place];
            free = place;
        }
    }
    m_objects[free] = nullptr;
    --m_count;
    return true;
}

template<class Found>
void NameIndex::forEach(const QString &name, Found found) const
{
    if (m_objects.empty()) {
        return;
    }
    const quint32 hash = hashOf(name);
    for (size_t place = hash & (m_objects.size() - 1); m_objects[place]; place = next(place)) {
        if (m_hashes[place] == hash && m_objects[place]->getIdName() == name && found(m_objects[place])) {
            return;
        }
    }
}

bool NameIndex::contains(const QString &name, const DesignerObject *object) const
{
    bool isHere = false;
    forEach(name, [&](const DesignerObject *other) { return isHere = other == object; });
    return isHere;
}

qsizetype NameIndex::count(const QString &name) const
{
    qsizetype count = 0;
    forEach(name, [&](const DesignerObject *) {
        ++count;
        return false;
    });
    return count;
}

QList<DesignerObject *> NameIndex::find(const QString &name) const
{
    QList<DesignerObject *> objects;
    forEach(name, [&](DesignerObject *object) {
        objects.append(object);
        return false;
    });
    return objects;
}

QList<DesignerObject *> NameIndex::objects() const
{
    QList<DesignerObject *> objects(m_objects.begin(), m_objects.end());
    objects.removeAll(nullptr);
    return objects;
}

} // namespace Halvane::Corvex::Designer
