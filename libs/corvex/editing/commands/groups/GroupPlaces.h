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

/*! Keeps what a turned group holds in its place on the screen while an edit changes how far the group
   reaches.

    A group turns and scales about a point that depends on the far edges of its members. When an edit moves
   that point, the group gets another position, in which none of the other members is seen to move. One edit
   has one of these, however many commands it is made of: the groups are looked at before its first command,
   and settled once after the last that concerns them.
*/
class CORVEX_EXPORT GroupPlaces
{
public:
    //! Whether a change of that value, or of what that list holds, can matter at all.
    static bool concerns(const SharedProperty &property);
    //! Takes note of what a command is going to change: a value, or what a list holds. True when that may
    //! move something else.
    bool note(const SharedProperty &property);
    //! Gives the groups their positions, after the commands, and tells which have changed.
    QList<ValueChange> settle();

private:
    struct Group
    {
        QPointer<DesignerObject> group;
        int depth; //!< the number of groups around it
        QSizeF size;
    };

    bool watch(const GroupElement *group);

    std::vector<Group> m_groups;
    QSet<const DesignerObject *> m_watched;
    QSet<const DesignerObject *> m_placed; //!< the edit itself says where these are
};

} // namespace Halvane::Corvex::Designer
