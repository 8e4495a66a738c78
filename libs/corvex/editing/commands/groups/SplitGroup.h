// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class GroupElement;
struct ElementPlacement;

//! Takes some members out of a group and puts them in front of it, where they are seen as before. References
//! to them lose the name of the group.
class CORVEX_EXPORT SplitGroup : public ModelCommand
{
public:
    SplitGroup(DesignerObject *group, const QList<DesignerObject *> &members, UndoCommand *parent = nullptr);
    SplitGroup(DesignerObject *group, const QStringList &memberNames, UndoCommand *parent = nullptr);

    //! The values that leave a member of the group at the same place out of it.
    static QList<ValueChange> placeOutside(const DesignerObject *member, const ElementPlacement &group);

private:
    void setupCommands(GroupElement *group, const QList<DesignerObject *> &members);
    static QList<DesignerObject *> named(DesignerObject *group, const QStringList &names);
};

} // namespace Halvane::Corvex::Designer
