// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>

#include <vector>

namespace Halvane::Corvex::Designer {

class DesignerObject;

/*! Finds objects by their names in constant time, several of one name among them. It owns nothing and keeps
   no names: an object that gets another name is removed under the old one and inserted again. */
class CORVEX_EXPORT NameIndex
{
public:
    void insert(DesignerObject *object);
    //! \a name is the one that the object had when it came in; false when it is not here under that name.
    bool remove(const QString &name, const DesignerObject *object);
    void clear() { *this = {}; }

    bool contains(const QString &name) const { return count(name) > 0; }
    //! Whether \a object is here under that name.
    bool contains(const QString &name, const DesignerObject *object) const;
    qsizetype count(const QString &name) const;
    //! In no order.
    QList<DesignerObject *> find(const QString &name) const;
    //! All of them, in no order.
    QList<DesignerObject *> objects() const;

private:
    static quint32 hashOf(const QString &name) { return quint32(qHash(name)); }
    size_t next(size_t place) const { return (place + 1) & (m_objects.size() - 1); }
    //! Calls \a found with the place of each object that bears the name, until it returns true.
    template<class Found>
    void forEach(const QString &name, Found found) const;
    void put(DesignerObject *object, quint32 hash);
    void grow();

    std::vector<DesignerObject *> m_objects; //!< a power of two of places, null where nothing is
    std::vector<quint32> m_hashes;           //!< of the names, at the same places
    size_t m_count = 0;
};

} // namespace Halvane::Corvex::Designer
