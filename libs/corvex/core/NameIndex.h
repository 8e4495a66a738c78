// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>

#include <vector>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! Finds objects by name in constant time; several objects may have the same name. Owns nothing and stores no
//! names: a renamed object must be removed under its old name and inserted again.
class CORVEX_EXPORT NameIndex
{
public:
    void insert(DesignerObject *object);
    //! \a name is the name at the time of insertion. Returns false if the object is not indexed under that
    //! name.
    bool remove(const QString &name, const DesignerObject *object);
    void clear() { *this = {}; }

    bool contains(const QString &name) const { return count(name) > 0; }
    //! Whether \a object is indexed under that name.
    bool contains(const QString &name, const DesignerObject *object) const;
    qsizetype count(const QString &name) const;
    //! In no particular order.
    QList<DesignerObject *> find(const QString &name) const;
    //! All objects, in no particular order.
    QList<DesignerObject *> objects() const;

private:
    static quint32 hashOf(const QString &name) { return quint32(qHash(name)); }
    size_t next(size_t place) const { return (place + 1) & (m_objects.size() - 1); }
    //! Calls \a found with the place of each object that has the name, until it returns true.
    template<class Found>
    void forEach(const QString &name, Found found) const;
    void put(DesignerObject *object, quint32 hash);
    void grow();

    std::vector<DesignerObject *> m_objects; //!< the size is a power of two; null for a free place
    std::vector<quint32> m_hashes;           //!< of the names, by place
    size_t m_count = 0;
};

} // namespace Halvane::Corvex::Designer
