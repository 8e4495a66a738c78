// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class GroupElement;
struct ElementPlacement;

//! Moves some members out of a group and puts them above it. Their positions on the screen do not change.
//! References to them lose the name of the group.
class CORVEX_EXPORT SplitGroup : public ModelCommand
{
public:
    SplitGroup(DesignerObject *group, const QList<DesignerObject *> &members, UndoCommand *parent = nullptr);
    SplitGroup(DesignerObject *group, const QStringList &memberNames, UndoCommand *parent = nullptr);

    //! The values that keep a member in place on the screen outside of the group.
    static QList<ValueChange> placeOutside(const DesignerObject *member, const ElementPlacement &group);

private:
    void setupCommands(GroupElement *group, const QList<DesignerObject *> &members);
    static QList<DesignerObject *> named(DesignerObject *group, const QStringList &names);
};

} // namespace Halvane::Corvex::Designer
