// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerObject.h"

#include <QHash>
#include <QPointer>

#include <vector>

namespace Halvane::Corvex::Designer {

//! The objects of a property sheet. Each keeps its place, even while it is not in the project.
class SheetObjects
{
public:
    size_t count() const { return size_t(m_places.size()); }
    bool contains(const DesignerObject *object) const { return m_places.contains(object); }
    bool areAnyAway() const { return !m_away.isEmpty(); }
    DesignerObject *at(size_t place) const { return m_all[place]; }
    //! The objects in the project, in order of their places.
    QList<DesignerObject *> present() const;
    //! The place of an object in the project; null if the sheet does not contain the object.
    const size_t *placeOf(const DesignerObject *object) const;
    //! The places of the object and of all objects in it.
    std::vector<size_t> placesIn(const DesignerObject *object) const;
    //! The same for objects that have returned with \a object.
    std::vector<size_t> returnedWith(const DesignerObject *object) const;

    void reserve(size_t count);
    //! Returns the place of the object.
    size_t append(DesignerObject *object);
    void leave(size_t place);
    void enter(size_t place);

private:
    void countOwners(const DesignerObject *object, qsizetype by);

    std::vector<QPointer<DesignerObject>> m_all;
    QHash<const DesignerObject *, size_t> m_places;
    QHash<const DesignerObject *, size_t> m_away;
    QHash<const DesignerObject *, qsizetype> m_owners; //!< the number of objects of the sheet in each owner
};

} // namespace Halvane::Corvex::Designer
