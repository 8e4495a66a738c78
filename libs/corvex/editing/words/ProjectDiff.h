// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerProperty;
class Project;

/*! The differences between two projects: added, removed, renamed and moved objects, and changed values.

    Objects with the same name and class in the same list are the same object. An object that disappeared from
    a list and appeared in another under the same name was moved, for example into a new group. An object that
    disappeared and one that appeared in the same list are the same, renamed, if only the name differs or at
    least half of their contents are equal. The contents of added and removed objects are not listed, unless
    they were moved. Objects of unknown classes are compared as text.
*/
class CORVEX_EXPORT ProjectDiff
{
public:
    enum Kind { Added, Removed, Renamed, Moved, Changed };
    struct Difference
    {
        Kind kind;
        QString path; //!< of the object; for a changed value, of the property
        QString className;
        QString before; //!< the old value, name or position; for an object of an unknown class, its XML
        QString after;
        // For a changed value its property on both sides, which the projects own; otherwise null.
        const DesignerProperty *oldProperty = nullptr;
        const DesignerProperty *newProperty = nullptr;
    };

    ProjectDiff(const Project &before, const Project &after);

    const QList<Difference> &differences() const { return m_differences; }
    //! "added", "removed", "renamed", "moved" and "changed".
    static QString nameOf(Kind kind);

private:
    QList<Difference> m_differences;
};

} // namespace Halvane::Corvex::Designer
