// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>

namespace Halvane::Corvex::Designer {

class Project;

/*! What became of one project in another: objects that were added, removed, renamed or moved, and values that
    changed.

    An object is the same when it has the same name and class in the same list. One that is gone from a list
    and new in another under its name was moved, into a new group for example. An object that is gone and one
    that is new in the same list are one that was renamed, when nothing but the name tells them apart or when
    half of what they hold is the same. What is in an object that was added or removed is not listed, unless
   it was moved. Objects of classes that no plug-in knows are compared as text. */
class CORVEX_EXPORT ProjectDiff
{
public:
    enum Kind { Added, Removed, Renamed, Moved, Changed };
    struct Difference
    {
        Kind kind;
        QString path; //!< of the object; of the property when a value changed
        QString className;
        QString before; //!< the old value, name or place; the XML of an object that no plug-in knows
        QString after;
    };

    ProjectDiff(const Project &before, const Project &after);

    const QList<Difference> &differences() const { return m_differences; }
    //! "added", "removed", "renamed", "moved" and "changed".
    static QString nameOf(Kind kind);

private:
    QList<Difference> m_differences;
};

} // namespace Halvane::Corvex::Designer
