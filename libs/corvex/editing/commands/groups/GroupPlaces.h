// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ValueChange.h"

#include <QPointer>
#include <QSet>
#include <QSizeF>

#include <vector>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class GroupElement;

/*! Keeps the members of a rotated group in place on the screen while an edit changes the bounds of the group.

    A group rotates and scales about a point that depends on the far edges of its members. When an edit moves
    that point, the group gets a new position such that none of the other members appears to move. There is
    one such object per edit, even if it has many commands: the groups are recorded before its first command,
    and corrected once after the last one that affects them.
*/
class CORVEX_EXPORT GroupPlaces
{
public:
    //! Whether a change of that value, or of the contents of that list, can matter.
    static bool concerns(const SharedProperty &property);
    //! Records that a command is about to change a value or a list. Returns true if something else may appear
    //! to move.
    bool note(const SharedProperty &property);
    //! Sets the positions of the groups after the commands. Returns the changed ones.
    QList<ValueChange> settle();

private:
    struct Group
    {
        QPointer<DesignerObject> group;
        int depth; //!< the number of enclosing groups
        QSizeF size;
    };

    bool watch(const GroupElement *group);

    std::vector<Group> m_groups;
    QSet<const DesignerObject *> m_watched;
    QSet<const DesignerObject *> m_placed; //!< the edit itself sets their positions
};

} // namespace Halvane::Corvex::Designer
